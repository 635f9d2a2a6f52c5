#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# What becomes of the real window: moved, covered, minimised, stretched, out of focus, closed by the window manager.
#   window.sh VELKAR VELKAR-DRIVE ROOT WORK
. "$(dirname "$0")/common.sh"
start_display
expect_pictures <<'S'
load
window menu.bmp
S
start_game
await_picture menu menu.bmp

is_viewable() { xwininfo -id "$window" 2>>xwininfo.log | grep -q IsViewable; }
is_hidden() { ! is_viewable; }
has_focus() { [ "$(xdotool getwindowfocus 2>>xdotool.log)" = "$window" ]; }
lost_focus() { ! has_focus; }
focus() {
    xdotool windowactivate "$window"
    await "the window does not get the focus" has_focus
}
# By a window manager that does not mind the size the game asks for.
resize() {
    xprop -id "$window" -remove WM_NORMAL_HINTS
    xdotool windowsize "$window" "$1" "$2"
    await "the window does not become $1 x $2" measures "$1" "$2"
}
# Another program's window of one colour, with the focus; takes the place of the one before.
green='#00b040'
cover() {
    display -title cover -geometry "$1" xc:"$green"'[260x150!]' 2>>display.log &
    cover=$!
    pids+=($cover)
    await "the other window does not take the focus" lost_focus
}
uncover() {
    kill $cover
    wait $cover 2>/dev/null || true
}
# Pictures reach into every corner: none is one colour throughout.
fills() {
    local corner
    for corner in NorthWest NorthEast SouthWest SouthEast; do
        [ "$(convert "$1.png" -gravity $corner -crop 12x12+0+0 +repage -format '%k' info:)" -gt 1 ] || return
    done
}
is_covered() { [ "$(count "$1" "$green" "${WIDTH}x$HEIGHT+0+0")" -gt 20000 ]; }

# Moved by the window manager: the picture moves along, and the pointer still meets what it points at.
xdotool windowmove "$window" 70 40
await "the window does not move" stands_at 70 40
await_picture moved menu.bmp

# Covered and uncovered.
cover +150+100
until_shown covered "the other window does not cover the game's" is_covered covered
uncover
await_picture uncovered menu.bmp

# Minimised and restored.
xdotool windowminimize "$window"
await "the window is not minimised" is_hidden
xdotool windowmap "$window"
await "the window is not restored" is_viewable
await_picture restored menu.bmp

# Resized: the menu fits itself to every size, and is the same as before when the window is.
for size in '1200 624' '333 555' '40 30' '1280 1024'; do
    resize $size
    until_shown "menu-${size/ /x}" "the menu does not fill a window of $size" fills "menu-${size/ /x}"
done
resize 600 312
await_picture again menu.bmp

# The race, at rest until the cars are released.
click 300 169
until_shown countdown "the race does not show" differs countdown.png menu.bmp 50000
letters countdown $gear rest


# A held key repeats: it types again and again, but pauses once, when it is let go.
line=400x16+100+24 # of the console's line, from the fifteenth letter or so on
has_not_typed() { [ "$(count "$1" white $line)" = 0 ]; }
has_typed() { [ "$(count "$1" white $line)" -gt 100 ]; }
xdotool key backslash keydown w
until_shown console "a held key types no row of letters" has_typed console
xdotool keyup w key Escape
until_shown closed "the console does not close" has_not_typed closed
xdotool keydown p
end=$((SECONDS + 3))
while [ $SECONDS -lt $end ]; do
    shot held
    shows_no_pause held || fail "a held key pauses before it is let go"
done
xdotool keyup p
until_shown paused "PAUSA does not show" shows_pause paused

# The paused race is stretched over a larger window, pixel by pixel, and back. The frame rate above may change.
without_rate() { convert "$1.png" -fill black -draw "rectangle 0,0 $2" "$1-still.png"; }
is_doubled() {
    without_rate "$1" 239,79
    same "$1-still" doubled
}
is_as_before() {
    without_rate "$1" 119,39
    same "$1-still" paused-still
}
without_rate paused 119,39
convert paused-still.png -filter point -resize 200% doubled.png
resize 1200 624
until_shown stretched "the race is not stretched over the larger window" is_doubled stretched
resize 600 312
until_shown shrunk "the race is not as before in the former size" is_as_before shrunk
xdotool key p
until_shown resumed "the pause does not end" shows_no_pause resumed

# A window without the focus is told nothing of the keys, so what was held is let go: the car rolls out while the player
# is away. The key that is still down when he comes back counts again. Backward, where the cars are slow.
xdotool keydown Down
until_shown driving "the car does not go backward" drives driving
cover +900+800
until_shown rolled "the car drives on without the focus" stands rolled
uncover
focus
until_shown back "the held key does nothing when the focus comes back" drives back
xdotool keyup Down

# Minimised in the race.
xdotool windowminimize "$window"
await "the window is not minimised in the race" is_hidden
xdotool windowmap "$window"
await "the window is not restored in the race" is_viewable
focus
xdotool keydown space
until_shown braked "the handbrake does not stop the car after the window was minimised" stands braked
xdotool keyup space

# Closed by the window manager: in the race, and in the menu of another run.
focus
xdotool key alt+F4
await_end "closing the window in the race"
start_game
await_picture second menu.bmp
focus
xdotool key alt+F4
await_end "closing the window in the menu"
echo "passed: moved, covered, minimised, resized, keys held, focus lost, closed"
