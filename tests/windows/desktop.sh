#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Plays the Windows program in Wine by the same hand, and looks at it with the same eyes, as the desktop program of this
# system: NAME is that of a test in ../desktop.
#   desktop.sh 32|64 NAME VELKAR VELKAR-DRIVE ROOT WORK
# VELKAR-DRIVE is a program of this system.
width=$1 name=$2
shift 2
windows=$(realpath "$(dirname "$0")") desktop=$windows/../desktop
if ! [ -x "$2" ]; then
    echo "skipped: $2 is not built"
    exit 77
fi
probe=""
source "$desktop/common.sh"
source "$windows/desktop-wine.sh"
source "$desktop/listen.sh"
start_display
start_server
start_wine "$width"
stop_wine # the test brings a display of its own
put_program "$game" velkar
"$desktop/$name.sh" "$work/velkar" "$drive" "$root" "$work/$name" 9>&-
