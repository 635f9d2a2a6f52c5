#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The webcam panel and the player's picture in the race of the Windows program in Wine, with the tests' webcam libraries
# beside it; then without them.
#   camera.sh 32|64 VELKAR VELKAR-DRIVE ROOT WORK ESCAPI.DLL ESCAPIVB.DLL
# VELKAR-DRIVE is a program of this system.
width=$1
shift
windows=$(realpath "$(dirname "$0")") desktop=$windows/../desktop
if ! [ -x "$2" ]; then
    echo "skipped: $2 is not built"
    exit 77
fi
libraries=("$(realpath "$5")" "$(realpath "$6")")
probe=""
source "$desktop/common.sh"
source "$windows/desktop-wine.sh"
source "$desktop/listen.sh"
start_display
start_server
start_wine "$width"
source "$desktop/webcam.sh"

# The camera's picture of 107 x 80 is a slope of colours (webcam/Camera.h), here at three of its points, and a white
# square of 8 x 8 that runs through its middle.
preview_upper=8x8+243+83 upper='#402814'   # at 20, 20
preview_lower=8x8+342+148 lower='#407850'  # at 80, 60
inset_lower=6x6+52+72 inset_colour='#40783c' # at 60, 60
preview_middle=176x40+214+100 inset_middle=70x20+5+45
shows_room() {
    [ "$(near "$1" $upper $preview_upper)" -gt 48 ] && [ "$(near "$1" $lower $preview_lower)" -gt 48 ] &&
        [ "$(count "$1" white $preview_middle)" -gt 80 ]
}
is_keyed() {
    [ "$(count "$1" '#60d070' 184x138+210+51)" -gt 300 ] && [ "$(near "$1" $lower $preview_lower)" = 0 ] &&
        [ "$(count "$1" white $preview_middle)" -gt 80 ]
}
shows_player() { [ "$(count "$1" white $inset_middle)" -ge 48 ] && [ "$(near "$1" $inset_colour $inset_lower)" = 0 ]; }
corner() { convert "$1.png" -crop $inset +repage "$2.png"; }
shows_no_inset() {
    corner "$1" without
    [ "$(count "$1" white $inset_middle)" = 0 ] && differs with.png without.png 4000
}
put_game() {
    cp "$program" "$1/velkar.exe"
    put_program "$1/velkar.exe" "$1/velkar"
}

program=$game
make_root filmed
cp "${libraries[@]}" filmed
game=$work/filmed/velkar
learn_and_race
corner race with
make_root alone
game=$work/alone/velkar
race_without_camera
echo "passed: panel, calibration, inset; and without the libraries none of them"
