#!/usr/bin/env bash
# The webcam panel and the player's picture in the race, with a synthetic source in place of a camera; then no camera.
#   camera.sh VELKAR VELKAR-DRIVE ROOT WORK VELKAR-FILMED
filmed=$(realpath "$5")
. "$(dirname "$0")/common.sh"
start_display
"$drive" --root "$root" /dev/stdin >expected.txt <<'S' || { cat expected.txt; fail "velkar-drive"; }
load
window menu.bmp
click cOPZIONI
window options.bmp
click cVidOpt
window video_without.bmp
S

# A brown room, empty for eight seconds after the camera was opened, then somebody in blue before it.
cat >filmed.sh <<S
exec "$filmed" lavfi "color=c=0x806040:s=640x480:r=25,drawbox=x=220:y=120:w=200:h=360:c=0x3050d0:t=fill:enable='gt(t,8)'"
S
chmod +x filmed.sh
# Numbers of pixels near a colour: the synthetic picture has gone through a video format.
near() { convert "$1.png" -crop "$3" +repage -fuzz 6% -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:round(mean*w*h)]' info:; }
brown='#806040' blue='#3050d0'
preview=176x130+214+55 inset=70x70+5+20
shows_room() { [ "$(near "$1" $brown $preview)" -gt 15000 ]; }
is_keyed() { [ "$(count "$1" '#60d070' 184x138+210+51)" -gt 300 ] && [ "$(near "$1" $brown $preview)" -lt 500 ]; }
shows_player() { [ "$(near "$1" $blue $inset)" -gt 800 ] && [ "$(near "$1" $brown $inset)" -lt 200 ]; }
shows_no_inset() { [ "$(near "$1" $blue $inset)" = 0 ]; }
nearly() { ! differs "$1.png" "$2" "$3"; }

without=$game
game=$PWD/filmed.sh
start_game
await_picture menu menu.bmp
click 300 202
click_until() { # X Y NAME COMMAND…: clicks once, then waits
    local x=$1 y=$2 name=$3
    shift 3
    click "$x" "$y"
    until_shown "$name" "a click at $x,$y does not lead to $name" "$@"
}
ticked() { [ "$(near "$1" '#ff9e36' 20x20+90+214)" -gt 60 ]; }
click_until 300 143 video ticked video
click_until 424 225 panel shows_room panel
click_until 286 216 calibrated is_keyed calibrated
click 300 283
click_until 300 259 options nearly options options.bmp 20000
click 300 235
await_picture menu menu.bmp
click 300 169
until_shown race "the player does not sit in the corner of the race" shows_player race
xdotool mousemove 5 5 key Escape
shows_menu() { differs "$1.png" race.png 20000; }
until_shown suspended "the menu does not show over the race" shows_menu suspended
click 300 268
await_end Esci

# Without a camera the box is off, a click does not tick it, and the race has no inset.
if compgen -G '/dev/video*' >/dev/null; then
    echo "passed: panel, calibration, inset (there is a real camera here: the game without one was not tried)"
    exit 0
fi
game=$without
start_game
await_picture menu menu.bmp
click 300 202
is_off() { ! ticked "$1"; }
shows_video() { nearly "$1" video_without.bmp 20000; }
click_until 300 143 unticked shows_video unticked
click 98 225
sleep 0.5
until_shown unticked "a click ticks the box that is off" is_off unticked
click_until 300 259 options nearly options options.bmp 20000
click 300 235
await_picture menu menu.bmp
click 300 169
until_shown race "the race does not show" differs race.png menu.bmp 50000
shows_no_inset race || fail "there is an inset without a camera"
xdotool mousemove 5 5 key Escape
until_shown suspended "the menu does not show over the race" shows_menu suspended
click 300 268
await_end Esci
echo "passed: panel, calibration, inset; and without a camera none of them"
