#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The console of the real program: real keys type real characters, and the answers are read back from the picture.
#   console.sh VELKAR VELKAR-DRIVE ROOT WORK
. "$(dirname "$0")/common.sh"
start_display
setxkbmap it # "\" stands left of the 1, "è" on a key of its own
expect_pictures <<'S'
load
click cSTART
run 500
render 1
window closed.bmp
key up 220
render 1
window opened.bmp
chars GET cameraè_
render 1
window mistyped.bmp
char 8
char 8
chars  zoom
render 1
window typed.bmp
char 13
render 1
window answered.bmp
key up 27
render 1
window closed_again.bmp
key up 220
chars set player 0 control (1)
char 13
render 1
window refused.bmp
S

# The line stands over the sky, in which nothing is quite white: its letters alone, to the pixel.
line=500x22+0+22
letters_of() { convert "$1" -crop $line +repage -fill black +opaque white "$2.png"; }
for name in closed opened mistyped typed answered closed_again refused; do
    letters_of $name.bmp expected-$name
done
same expected-closed expected-closed_again || fail "something white stands where the line is to be"
for name in opened mistyped typed answered refused; do
    same expected-closed expected-$name && fail "the line cannot be read from $name.bmp"
done
reads() { letters_of "$1.png" "$1-line" && same "$1-line" "expected-$1"; }
await_line() { until_shown "$1" "the line does not read as in $1.bmp" reads "$1"; }

start_game
click 300 169
await_line closed
xdotool key p # nothing drives into the view
until_shown paused "PAUSA does not show" shows_pause paused

# The "\" key opens when it is released; the "\" it types does not get into the line.
xdotool key backslash
await_line opened
xdotool type "GET cameraè_"
await_line mistyped
xdotool key BackSpace key BackSpace
xdotool type " zoom"
await_line typed
# The clipboard, and a line put back by it.
xdotool key ctrl+c
xdotool key BackSpace key BackSpace key BackSpace key BackSpace
xdotool key ctrl+v
await_line typed
xdotool key Return
await_line answered
# Up recalls the command; Enter answers again.
xdotool key Up
await_line typed
xdotool key Return
await_line answered

# Esc closes the console and not the race: no menu has come that would keep it from opening again.
xdotool key Escape
await_line closed_again
xdotool key backslash
await_line opened
xdotool type "set player 0 control (1)"
xdotool key Return
await_line refused
xdotool key Escape
await_line closed

# Esc without it opens the menu, whose last entry ends the game.
xdotool key Escape
click_ends() {
    click 300 268
    sleep 0.2
    has_ended
}
await "Esc and Esci do not end the game" click_ends
await_end Esci
echo "passed: opening, characters, Backspace, clipboard, Enter, recall, Esc"
