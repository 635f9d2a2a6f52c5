#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Runs the tests of the Windows back end's devices in Wine: with a sound server, then without.
#   devices.sh 32|64 TEST-PROGRAM VELKAR-DRIVE ROOT WORK
width=$1
shift
windows=$(realpath "$(dirname "$0")") desktop=$windows/../desktop
probe=""
source "$desktop/common.sh"
source "$windows/desktop-wine.sh"
source "$desktop/listen.sh"
start_display
start_server
start_wine "$width"
# Into files: programs of Wine's own outlive the test and would hold a reader's pipe.
tests() { "${inside[@]}" wine "$game" --gtest_filter="$1" >tests.log 2>>wine.log 9>&- || { cat tests.log; fail "$2"; }; }
tests '-WinWithoutSound.*' "the devices do not pass"
cat tests.log
stop_server
tests 'WinWithoutSound.*' "a machine without sound is not told so"
cat tests.log
