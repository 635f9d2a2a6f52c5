#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# From the menu to another resolution and back, with mouse and keys: every step is what the game shows without a window.
#   options.sh VELKAR VELKAR-DRIVE ROOT WORK
. "$(dirname "$0")/common.sh"
start_display
expect_pictures <<'S'
load
window menu.bmp
click cOPZIONI
window options.bmp
click cVidOpt
window video.bmp
type txtRes 80x600
click cVidOptOK
window refused.bmp
type txtRes 800x600
click cVidOptOK
window chosen.bmp
click cOptOK
window large.bmp
click cSTART
run 500
render 1
window closed.bmp
key up 220
chars get camera zoom
char 13
render 1
window answered.bmp
key up 27
key up 27
window suspended.bmp
S

# The line of the console over the sky, in which nothing is quite white.
line=500x22+0+22
letters_of() { convert "$1" -crop $line +repage -fill black +opaque white "$2.png"; }
for name in closed answered; do letters_of $name.bmp expected-$name; done
same expected-closed expected-answered && fail "the answer cannot be read from answered.bmp"
reads() { letters_of "$1.png" "$1-line" && same "$1-line" "expected-$1"; }
# The menu's bright letters alone, for the race shows through behind them.
entries() { convert "$1" -crop 360x280+220+290 +repage -colorspace Gray -threshold 88% "$2.png"; }
shows_entries() { entries "$1.png" "$1-entries" && ! differs "$1-entries.png" expected-entries.png 80; }
entries suspended.bmp expected-entries
# A frame's picture that is as in the bitmap but for what is under the pointer and the caret.
nearly() { ! differs "$1.png" "$1.bmp" "$2"; }

start_game
await_picture menu menu.bmp
click 300 202
until_shown options "the options do not show" nearly options 20000
click 300 143
until_shown video "the video options do not show" nearly video 20000

# A wrong resolution is refused in a message box, which Enter closes; the text stays.
xdotool key Tab
xdotool key ctrl+a
xdotool type 80x600
click 300 259
has_focus() { [ "$(xdotool getwindowfocus 2>>xdotool.log)" = "$window" ]; }
lost_focus() { ! has_focus; }
await "the wrong resolution is not refused" lost_focus
xdotool key Return
await "the message box does not close" has_focus
until_shown refused "the panel with the wrong text does not show" nearly refused 20000

# It is selected: what is typed replaces it. Enter is OK.
xdotool type 800x600
xdotool key Return
await "the window does not take the new size" measures 800 600
until_shown chosen "the options do not show in the new size" nearly chosen 60000
click 400 426
until_shown large "the menu does not show in the new size" nearly large 40000

# The race in the new size, and the console over it.
click 400 326
until_shown closed "the race does not show" reads closed
xdotool key backslash
xdotool type "get camera zoom"
xdotool key Return
until_shown answered "the answer does not read as in answered.bmp" reads answered
xdotool key Escape
until_shown closed "the console does not close" reads closed

# The menu, on with the race, the menu, the end.
xdotool mousemove 5 5 key Escape
until_shown suspended "the menu does not show over the race" shows_entries suspended
click 400 326
until_shown continued "Continua does not resume the race" differs continued.png suspended.png 50000
xdotool mousemove 5 5 key Escape
until_shown suspended "the menu does not show again" shows_entries suspended
click 400 518
await_end Esci
echo "passed: options, a refused resolution, another one, race, console, Continua, Esci"
