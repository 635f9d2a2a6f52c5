#!/usr/bin/env bash
# Plays the real program under a virtual display with a real mouse and real keys, and reads its picture back.
#   race.sh VELKAR VELKAR-DRIVE ROOT WORK
set -euo pipefail
game=$(realpath "$1") drive=$(realpath "$2") root=$(realpath "$3") work=$(realpath -m "$4")
for tool in Xvfb openbox xdotool import convert compare; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is not installed"
        exit 77
    fi
done
rm -rf "$work" && mkdir -p "$work" && cd "$work"
export XDG_RUNTIME_DIR=$work # a lock file of its own: a game that somebody plays is left alone

fail() {
    echo "FAILED: $*"
    import -window root failure.png 2>/dev/null || true
    echo "the screen at that moment: $work/failure.png"
    exit 1
}
pids=()
cleanup() { [ ${#pids[@]} -eq 0 ] || kill "${pids[@]}" 2>/dev/null || true; }
trap cleanup EXIT

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>display 2>xvfb.log &
pids+=($!)
for _ in $(seq 100); do [ -s display ] && break || sleep 0.1; done
[ -s display ] || { echo "skipped: Xvfb does not start here"; exit 77; }
DISPLAY=:$(cat display)
export DISPLAY
openbox >openbox.log 2>&1 &
pids+=($!)

# What the window should show, from the same game without a window.
cat >expected.drive <<'S'
load
window menu.bmp
click cSTART
render 1
key down 27
key up 27
window suspended.bmp
S
"$drive" --root "$root" expected.drive >expected.txt || { cat expected.txt; fail "velkar-drive"; }

"$game" >game.log 2>&1 &
player=$!
pids+=($player)
# The first window is the splash; the game's is the one that stands alone after it.
window=""
splash=""
for _ in $(seq 300); do
    ids=$(xdotool search --onlyvisible --name '^Velkar$' 2>>xdotool.log || true)
    if [ "$(wc -w <<<"$ids")" = 1 ]; then
        splash=${splash:-$ids}
        [ "$ids" != "$splash" ] && window=$ids && break
    fi
    sleep 0.05
done
[ -n "$window" ] || { cat game.log; fail "the game's window does not appear"; }
xdotool windowfocus --sync "$window"

place() { eval "$(xdotool getwindowgeometry --shell "$window" 2>>xdotool.log)"; }
shot() {
    place
    import -window root -crop "600x312+$X+$Y" +repage "$1.png" 2>>import.log
}
# Waits until the window shows what the bitmap holds, to the pixel.
await_picture() {
    for _ in $(seq 60); do
        shot "$1"
        [ "$(compare -metric AE "$1.png" "$2" null: 2>&1 || true)" = 0 ] && return
        sleep 0.1
    done
    compare -metric AE "$1.png" "$2" "$1-difference.png" || true
    fail "the window does not show $2 but $1.png"
}
# Waits until the menu's entries read as in the bitmap: its bright letters alone, for the race shows through behind them.
entries() { convert "$1" -crop 240x140+180+155 +repage -colorspace Gray -threshold 88% "$2.png"; }
await_entries() {
    entries "$2" expected-entries
    for _ in $(seq 60); do
        shot "$1"
        entries "$1.png" "$1-entries"
        [ "$(compare -metric AE "$1-entries.png" expected-entries.png null: 2>&1 || true)" -lt 60 ] && return
        sleep 0.1
    done
    fail "the menu's entries in $1.png do not read as in $2"
}
click() {
    place
    xdotool mousemove $((X + $1)) $((Y + $2))
    sleep 0.2
    xdotool click 1
    sleep 0.3
}
# Number of pixels of exactly that colour in a region of a picture.
count() { convert "$1.png" -crop "$3" +repage -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:round(mean*w*h)]' info:; }
# The white letters of a region alone, to compare.
letters() { convert "$1.png" -crop "$2" +repage -fill black +opaque white "$3.png"; }
same() { [ "$(compare -metric AE "$1.png" "$2.png" null: 2>&1 || true)" = 0 ]; }

# The menu, to the pixel; then the race by a click on its first entry.
xdotool mousemove 5 5
await_picture menu menu.bmp
click 300 169
sleep 0.7
shot countdown
[ "$(compare -metric AE countdown.png menu.bmp null: 2>&1 || true)" -gt 50000 ] || fail "the race does not show"
[ "$(convert countdown.png -format '%k' info:)" -gt 2000 ] || fail "the race is not much of a picture"

# Speed and gear at rest, driving, at rest again.
gauge=110x36+490+276
letters countdown $gauge rest
sleep 3.5
xdotool keydown Up
sleep 2
shot driving
xdotool keyup Up
letters driving $gauge moving
same rest moving && fail "the accelerator does nothing"
xdotool keydown space
for _ in $(seq 100); do
    shot stopped
    letters stopped $gauge again
    same rest again && break || sleep 0.1
done
xdotool keyup space
same rest again || fail "the handbrake does not stop the car"

# Pause: red letters over a picture that stands still but for the frame rate.
pausa=200x20+200+66
[ "$(count stopped '#ff0000' $pausa)" = 0 ] || fail "PAUSA shows while the race runs"
xdotool key p
sleep 0.3
shot paused
[ "$(count paused '#ff0000' $pausa)" -gt 30 ] || fail "PAUSA does not show"
sleep 0.7
shot paused2
for picture in paused paused2; do
    convert $picture.png -fill black -draw 'rectangle 0,0 120,40' $picture-still.png
done
same paused-still paused2-still || fail "the world moves during the pause"
xdotool key p
sleep 0.3
shot resumed
[ "$(count resumed '#ff0000' $pausa)" = 0 ] || fail "the pause does not end"

# Every view is another picture.
previous=resumed
for view in 2 3 4 5 6 7; do
    xdotool key $view
    sleep 0.8
    shot "view$view"
    [ "$(compare -metric AE "view$view.png" $previous.png null: 2>&1 || true)" -gt 30000 ] || fail "view $view changes nothing"
    previous=view$view
done
xdotool key 1

# The window is dragged by any point of it.
place
x=$X y=$Y
xdotool mousemove $((X + 200)) $((Y + 200)) mousedown 1
for step in 1 2 3 4; do xdotool mousemove $((x + 200 + 10 * step)) $((y + 200 - 5 * step)); sleep 0.1; done
xdotool mouseup 1
sleep 0.3
place
[ "$X,$Y" = "$((x + 40)),$((y - 20))" ] || fail "the window was dragged to $X,$Y from $x,$y, not by 40,-20"

# The menu over the suspended race, back, and out.
xdotool mousemove 5 5
xdotool key Escape
await_entries suspended suspended.bmp
click 300 169
sleep 0.5
shot continued
[ "$(compare -metric AE continued.png suspended.png null: 2>&1 || true)" -gt 50000 ] || fail "Continua does not resume the race"
xdotool mousemove 5 5
xdotool key Escape
await_entries suspended2 suspended.bmp
click 300 268
for _ in $(seq 50); do kill -0 $player 2>/dev/null || break; sleep 0.1; done
kill -0 $player 2>/dev/null && fail "Esci does not end the game"
wait $player || { cat game.log; fail "the game ended with status $?"; }
echo "passed: menu, race, keys, pause, views, dragging, Continua, Esci"
