# SPDX-License-Identifier: Zlib
# What the desktop tests share: a virtual display with a window manager, the game in its window, a hand on mouse and
# keys, and pictures of what the window shows. Sourced with the arguments VELKAR VELKAR-DRIVE ROOT WORK.
# Nothing here counts on the machine's pace: each step waits for what it expects.
set -euo pipefail
game=$(realpath "$1") drive=$(realpath "$2") root=$(realpath "$3") work=$(realpath -m "$4")
for tool in Xvfb openbox xdotool xwininfo xprop import convert compare display; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is not installed"
        exit 77
    fi
done
rm -rf "$work" && mkdir -p "$work" && cd "$work"
export XDG_RUNTIME_DIR=$work # a lock file of its own: a game that somebody plays is left alone
# A device that keeps time and plays nothing, but for tests of sound. Not "dummy": that one opens only once, and music
# and engine have a device each.
export SDL_AUDIODRIVER=${SDL_AUDIODRIVER:-disk} SDL_DISKAUDIOFILE=/dev/null

fail() {
    echo "FAILED: $*"
    import -window root failure.png 2>/dev/null || true
    echo "the screen at that moment: $work/failure.png"
    exit 1
}
pids=()
end_programs() { [ ${#pids[@]} -eq 0 ] || kill "${pids[@]}" 2>/dev/null || true; }
endings=(end_programs) # what is done at the end, in this order
cleanup() {
    local ending
    for ending in "${endings[@]}"; do $ending; done
}
trap cleanup EXIT

# await MESSAGE COMMAND…: until the command says yes, for a minute; then fails with the message.
await() {
    local message=$1 end=$((SECONDS + 60))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || fail "$message"
        sleep 0.05
    done
}

# ---- Display and game ----

has_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>>xprop.log | grep -q 'window id'; }
start_display() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>display 2>xvfb.log &
    pids+=($!)
    for _ in $(seq 100); do [ -s display ] && break || sleep 0.1; done
    [ -s display ] || { echo "skipped: Xvfb does not start here"; exit 77; }
    DISPLAY=:$(cat display)
    export DISPLAY
    openbox >openbox.log 2>&1 &
    pids+=($!)
    await "the window manager does not start" has_manager
}

# What the window should show, from the same game without a window.
expect_pictures() {
    "$drive" --root "$root" /dev/stdin >expected.txt || { cat expected.txt; fail "velkar-drive"; }
}

# The windows of the game that are on the screen; a window that goes away meanwhile may cost one look.
game_windows() { xdotool search --onlyvisible --name '^Velkar$' 2>>xdotool.log || true; }
# The game's window is what stands alone after the splash; or, where a busy machine has let nobody see the splash, what
# has stood alone for long without showing its picture.
first_window="" looks=0
is_started() {
    local ids
    has_ended && fail "the game ends while it starts$(wait $player || echo " with status $?"): $(cat game.log)"
    ids=$(game_windows)
    [ "$(wc -w <<<"$ids")" = 1 ] || return 1
    window=$ids
    first_window=${first_window:-$ids}
    [ "$window" = "$first_window" ] || return 0
    if shot starting && differs starting.png "$root/data/images/splash.bmp" 20000; then
        looks=$((looks + 1))
    else
        looks=0
    fi
    [ $looks -ge 20 ]
}
takes_focus() { timeout 5 xdotool windowfocus --sync "$window" 2>>xdotool.log; }
# Sets `player`, the process, and `window`.
start_game() {
    # The system's libraries below SDL keep memory to the end; the game's own is watched by every other test.
    ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0 "$game" >game.log 2>&1 &
    player=$!
    pids+=($player)
    window="" first_window="" looks=0
    await "the game's window does not appear" is_started
    await "the game's window does not take the focus" takes_focus
    xdotool mousemove 5 5 # no entry lies under the pointer
}

has_ended() { ! kill -0 $player 2>/dev/null; }
# await_end WHAT: the game ends by itself and in order.
await_end() {
    await "$1 does not end the game" has_ended
    wait $player || { cat game.log; fail "the game ended with status $?"; }
}

# ---- The window and its pictures ----

# Sets X, Y, WIDTH and HEIGHT.
place() {
    local geometry
    geometry=$(xdotool getwindowgeometry --shell "$window" 2>>xdotool.log) && eval "$geometry"
}
stands_at() { place && [ "$X,$Y" = "$1,$2" ]; }
measures() { place && [ "$WIDTH,$HEIGHT" = "$1,$2" ]; }
shot() {
    place || return
    import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$1.png" 2>>import.log
}
# The number of pixels that differ; very many where one picture has not the other's size.
differing() {
    local pixels
    pixels=$(compare -metric AE "$1" "$2" null: 2>&1) || true
    [[ $pixels =~ ^[0-9.e+]+$ ]] && printf '%.0f' "$pixels" || echo 999999999
}
same() { [ "$(differing "$1.png" "$2.png")" = 0 ]; }
differs() { [ "$(differing "$1" "$2")" -gt "$3" ]; }
shot_equals() { shot "$1" && [ "$(differing "$1.png" "$2")" = 0 ]; }
# Waits until the window shows what the bitmap holds, to the pixel.
await_picture() { await "the window does not show $2 but $1.png" shot_equals "$1" "$2"; }
shot_and() {
    shot "$1"
    shift
    "$@"
}
# until_shown NAME MESSAGE COMMAND…: takes pictures NAME until the command says yes.
until_shown() {
    local name=$1 message=$2
    shift 2
    await "$message" shot_and "$name" "$@"
}
# Number of pixels of exactly that colour in a region of a picture.
count() { convert "$1.png" -crop "$3" +repage -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:round(mean*w*h)]' info:; }
# The white letters of a region alone, to compare.
letters() { convert "$1.png" -crop "$2" +repage -fill black +opaque white "$3.png"; }

# A race shows its clock: the picture that stays is that of the menu over it.
menu_is_over_race() { shot over1 && sleep 0.3 && shot over2 && same over1 over2; }

# Red letters in the middle above.
pausa=200x20+200+66
shows_pause() { [ "$(count "$1" '#ff0000' $pausa)" -gt 30 ]; }
shows_no_pause() { [ "$(count "$1" '#ff0000' $pausa)" = 0 ]; }
# The letter of the gear: `rest.png` holds the N of a car that stands. What else is white there is scenery behind it.
gear=9x10+591+299
stands() {
    letters "$1" $gear "$1-gear"
    [ "$(convert rest.png "$1-gear.png" -fx 'u*(1-v)' -format '%[fx:round(mean*w*h)]' info:)" = 0 ]
}
drives() { ! stands "$1"; }

# ---- The hand ----

# click X Y: in the window.
click() {
    place
    xdotool mousemove $((X + $1)) $((Y + $2)) click 1
}
