#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The webcam panel and the player's picture in the race, with a synthetic source in place of a camera; then no camera.
#   camera.sh VELKAR VELKAR-DRIVE ROOT WORK VELKAR-FILMED
filmed=$(realpath "$5") desktop=$(realpath "$(dirname "$0")")
. "$desktop/common.sh"
start_display
. "$desktop/webcam.sh"

# A brown room, empty for eight seconds after the camera was opened, then somebody in blue before it.
cat >filmed.sh <<S
exec "$filmed" lavfi "color=c=0x806040:s=640x480:r=25,drawbox=x=220:y=120:w=200:h=360:c=0x3050d0:t=fill:enable='gt(t,8)'"
S
chmod +x filmed.sh
brown='#806040' blue='#3050d0'
shows_room() { [ "$(near "$1" $brown $preview)" -gt 15000 ]; }
is_keyed() { [ "$(count "$1" '#60d070' 184x138+210+51)" -gt 300 ] && [ "$(near "$1" $brown $preview)" -lt 500 ]; }
shows_player() { [ "$(near "$1" $blue $inset)" -gt 800 ] && [ "$(near "$1" $brown $inset)" -lt 200 ]; }
shows_no_inset() { [ "$(near "$1" $blue $inset)" = 0 ]; }

without=$game
game=$PWD/filmed.sh
learn_and_race
if compgen -G '/dev/video*' >/dev/null; then
    echo "passed: panel, calibration, inset (there is a real camera here: the game without one was not tried)"
    exit 0
fi
game=$without
race_without_camera
echo "passed: panel, calibration, inset; and without a camera none of them"
