#!/usr/bin/env bash
# Runs the tests of the Windows back end's devices in Wine: with a sound server, then without.
#   devices.sh TEST-PROGRAM VELKAR-DRIVE ROOT WORK
windows=$(realpath "$(dirname "$0")") desktop=$windows/../desktop
probe=""
source "$desktop/common.sh"
source "$windows/wine.sh"
source "$desktop/listen.sh"
start_display
start_server
start_wine
wine "$game" --gtest_filter=-WinWithoutSound.* 2>wine.log || fail "the devices do not pass"
stop_server
wine "$game" --gtest_filter=WinWithoutSound.* 2>>wine.log || fail "a machine without sound is not told so"
