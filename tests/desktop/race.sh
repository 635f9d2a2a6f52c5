#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Plays the real program under a virtual display with a real mouse and real keys, and reads its picture back.
#   race.sh VELKAR VELKAR-DRIVE ROOT WORK
. "$(dirname "$0")/common.sh"
start_display
expect_pictures <<'S'
load
window menu.bmp
click cSTART
run 2500
window countdown.bmp
key down 27
key up 27
window suspended.bmp
S
start_game

# Waits until the menu's entries read as in the bitmap: its bright letters alone, for the race shows through behind them.
entries() { convert "$1" -crop 240x140+180+155 +repage -colorspace Gray -threshold 88% "$2.png"; }
entries_read() {
    shot "$1"
    entries "$1.png" "$1-entries"
    [ "$(differing "$1-entries.png" expected-entries.png)" -lt 60 ]
}
await_entries() {
    entries "$2" expected-entries
    await "the menu's entries in $1.png do not read as in $2" entries_read "$1"
}

# The menu, to the pixel; then the race by a click on its first entry.
await_picture menu menu.bmp
click 300 169
# When the camera has arrived behind the car, the world stands still until the count is over: it is the headless one's
# to the pixel, but for frame rate, count and the music's title.
world() { convert "$1" -fill black -draw 'rectangle 0,0 120,20 rectangle 250,110 350,175 rectangle 0,278 300,300' "$2.png"; }
world countdown.bmp expected-world
starts=()
end=$((SECONDS + 5))
while [ $SECONDS -lt $end ]; do
    shot "start${#starts[@]}"
    starts+=("start${#starts[@]}")
done
least=999999999
for start in "${starts[@]}"; do
    world "$start.png" "$start-world"
    pixels=$(differing "$start-world.png" expected-world.png)
    [ "$pixels" -ge "$least" ] || least=$pixels
done
[ "$least" -lt 100 ] || fail "the race at its start differs from countdown.bmp in $least pixels and more"
until_shown countdown "the race does not show" differs countdown.png menu.bmp 50000
[ "$(convert countdown.png -format '%k' info:)" -gt 2000 ] || fail "the race is not much of a picture"

# At rest, driving, at rest again.
letters countdown $gear rest
xdotool keydown Up
until_shown driving "the accelerator does nothing" drives driving
xdotool keyup Up
xdotool keydown space
until_shown stopped "the handbrake does not stop the car" stands stopped
xdotool keyup space

# Pause: red letters over a picture that stands still but for the frame rate.
shows_no_pause stopped || fail "PAUSA shows while the race runs"
xdotool key p
until_shown paused "PAUSA does not show" shows_pause paused
sleep 0.5
shot paused
sleep 0.7
shot paused2
for picture in paused paused2; do
    convert $picture.png -fill black -draw 'rectangle 0,0 120,40' $picture-still.png
done
same paused-still paused2-still || fail "the world moves during the pause"
xdotool key p
until_shown resumed "the pause does not end" shows_no_pause resumed

# Every view is another picture.
previous=resumed
for view in 2 3 4 5 6 7; do
    xdotool key $view
    until_shown "view$view" "view $view changes nothing" differs "view$view.png" $previous.png 30000
    previous=view$view
done
xdotool key 1

# The window is dragged by any point of it, as far as the hand goes while it holds it, at any pace.
drag() {
    place
    local x=$X y=$Y step
    xdotool mousemove $((x + 200)) $((y + 200)) mousedown 1
    for step in 1 2 3 4; do xdotool mousemove $((x + 200 + $1 / 4 * step)) $((y + 200 + $2 / 4 * step)) sleep $3; done
    xdotool mouseup 1 mousemove $((x + 300)) $((y + 100))
    await "the window is not dragged from $x,$y by $1,$2" stands_at $((x + $1)) $((y + $2))
}
drag 40 -20 0.1
drag -80 40 0
drag 200 100 0.02

# The menu over the suspended race, back, and out.
xdotool mousemove 5 5
xdotool key Escape
await_entries suspended suspended.bmp
click 300 169
until_shown continued "Continua does not resume the race" differs continued.png suspended.png 50000
xdotool mousemove 5 5
xdotool key Escape
await_entries suspended2 suspended.bmp

# What it has all taken of the memory at most.
peak=$(awk '/^VmHWM/ { print $2 }' "/proc/$(xdotool getwindowpid "$window")/status")
[ "$peak" -le $((200 * 1024)) ] || fail "the game has taken $peak KiB of memory"

click 300 268
await_end Esci
echo "passed: menu, race, keys, pause, views, dragging, Continua, Esci; at most $((peak / 1024)) MiB resident"
