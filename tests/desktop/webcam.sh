# SPDX-License-Identifier: Zlib
# What the tests of the webcam share: the way through its panel into the race and out, and the game without a camera.
# Sourced after common.sh, on a display. Each test says what its camera shows: shows_room PICTURE in the preview,
# is_keyed PICTURE once the room is known, shows_player PICTURE in the race, shows_no_inset PICTURE.
"$drive" --root "$root" /dev/stdin >expected.txt <<'S' || { cat expected.txt; fail "velkar-drive"; }
load
window menu.bmp
click cOPZIONI
window options.bmp
click cVidOpt
window video_without.bmp
S

# Numbers of pixels near a colour: a camera's picture may have gone through a video format, and is stretched.
near() { convert "$1.png" -crop "$3" +repage -fuzz 6% -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:round(mean*w*h)]' info:; }
preview=176x130+214+55 inset=70x70+5+20
nearly() { ! differs "$1.png" "$2" "$3"; }
click_until() { # X Y NAME COMMAND…: clicks once, then waits
    local x=$1 y=$2 name=$3
    shift 3
    click "$x" "$y"
    until_shown "$name" "a click at $x,$y does not lead to $name" "$@"
}
ticked() { [ "$(near "$1" '#ff9e36' 20x20+90+214)" -gt 60 ]; }
is_off() { ! ticked "$1"; }
leave() {
    xdotool mousemove 5 5 key Escape
    await "the menu does not show over the race" menu_is_over_race
    click 300 268
    await_end Esci
}

# Ticks the box, lets the room be learnt, and races with the player in the corner: race.png.
learn_and_race() {
    start_game
    await_picture menu menu.bmp
    click 300 202
    click_until 300 143 video ticked video
    click_until 424 225 panel shows_room panel
    click_until 286 216 calibrated is_keyed calibrated
    click 300 283
    click_until 300 259 options nearly options options.bmp 20000
    click 300 235
    await_picture menu menu.bmp
    click 300 169
    until_shown race "the player does not sit in the corner of the race" shows_player race
    leave
}

# Without a camera the box is off, a click does not tick it, and the race has no inset.
race_without_camera() {
    start_game
    await_picture menu menu.bmp
    click 300 202
    click_until 300 143 unticked nearly unticked video_without.bmp 20000
    click 98 225
    sleep 0.5
    until_shown unticked "a click ticks the box that is off" is_off unticked
    click_until 300 259 options nearly options options.bmp 20000
    click 300 235
    await_picture menu menu.bmp
    click 300 169
    until_shown race "the race does not show" differs race.png menu.bmp 50000
    shows_no_inset race || fail "there is an inset without a camera"
    leave
}
