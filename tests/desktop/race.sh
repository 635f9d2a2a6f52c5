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

# The system's libraries below SDL keep memory to the end; the game's own is watched by every other test.
ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0 "$game" >game.log 2>&1 &
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
# Takes pictures NAME until the command says yes, for ten seconds; then fails with the message.
until_shown() {
    local name=$1 message=$2
    shift 2
    for _ in $(seq 60); do
        shot "$name"
        "$@" && return || sleep 0.1
    done
    fail "$message"
}
differs() { [ "$(compare -metric AE "$1" "$2" null: 2>&1 || true)" -gt "$3" ]; }
shows_pause() { [ "$(count "$1" '#ff0000' $pausa)" -gt 30 ]; }
shows_no_pause() { [ "$(count "$1" '#ff0000' $pausa)" = 0 ]; }
gauge_differs() { letters "$1" $gauge "$2" && ! same rest "$2"; }
gauge_rests() { letters "$1" $gauge "$2" && same rest "$2"; }
# The white letters of a region alone, to compare.
letters() { convert "$1.png" -crop "$2" +repage -fill black +opaque white "$3.png"; }
same() { [ "$(compare -metric AE "$1.png" "$2.png" null: 2>&1 || true)" = 0 ]; }

# The menu, to the pixel; then the race by a click on its first entry.
xdotool mousemove 5 5
await_picture menu menu.bmp
click 300 169
until_shown countdown "the race does not show" differs countdown.png menu.bmp 50000
[ "$(convert countdown.png -format '%k' info:)" -gt 2000 ] || fail "the race is not much of a picture"

# Speed and gear at rest, driving, at rest again.
gauge=110x36+490+276
letters countdown $gauge rest
sleep 3.5
xdotool keydown Up
until_shown driving "the accelerator does nothing" gauge_differs driving moving
sleep 1
xdotool keyup Up
xdotool keydown space
until_shown stopped "the handbrake does not stop the car" gauge_rests stopped again
xdotool keyup space

# Pause: red letters over a picture that stands still but for the frame rate.
pausa=200x20+200+66
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
    sleep 0.5
    until_shown "view$view" "view $view changes nothing" differs "view$view.png" $previous.png 30000
    previous=view$view
done
xdotool key 1

# The window is dragged by any point of it.
place
x=$X y=$Y
xdotool mousemove $((X + 200)) $((Y + 200)) mousedown 1
for step in 1 2 3 4; do xdotool mousemove $((x + 200 + 10 * step)) $((y + 200 - 5 * step)); sleep 0.1; done
# A slow machine may still be moving the window; the hand trembles meanwhile.
for _ in $(seq 50); do
    place
    [ "$X,$Y" = "$((x + 40)),$((y - 20))" ] && break
    xdotool mousemove $((x + 241)) $((y + 181))
    sleep 0.1
    xdotool mousemove $((x + 240)) $((y + 180))
    sleep 0.2
done
xdotool mouseup 1
sleep 0.5
place
[ "$X,$Y" = "$((x + 40)),$((y - 20))" ] || fail "the window was dragged to $X,$Y from $x,$y, not by 40,-20"

# The menu over the suspended race, back, and out.
xdotool mousemove 5 5
xdotool key Escape
await_entries suspended suspended.bmp
click 300 169
until_shown continued "Continua does not resume the race" differs continued.png suspended.png 50000
xdotool mousemove 5 5
xdotool key Escape
await_entries suspended2 suspended.bmp
click 300 268
for _ in $(seq 50); do kill -0 $player 2>/dev/null || break; sleep 0.1; done
kill -0 $player 2>/dev/null && fail "Esci does not end the game"
wait $player || { cat game.log; fail "the game ended with status $?"; }
echo "passed: menu, race, keys, pause, views, dragging, Continua, Esci"
