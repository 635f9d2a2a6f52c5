#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Listens to the real program on a sound server of its own: the engine, the music, what becomes of a server that goes
# away, and what a machine without sound is told.
#   sound.sh VELKAR VELKAR-DRIVE ROOT WORK VELKAR-FILMED SOUND-PROBE
export SDL_AUDIODRIVER=pulseaudio
probe=$(realpath "$6")
tests=$(realpath "$(dirname "$0")")
source "$tests/common.sh"
source "$tests/listen.sh"

start_server
start_display
whole_game=$game
hear_engine
hear_menu_and_race

# ---- The server goes away in the middle of the race ----

stop_server
xdotool keydown Up
sleep 1
shot without1
until_shown without2 "the race stands still without the sound server" differs without1.png without2.png 5000
xdotool keyup Up
no_box || fail "a sound server that goes away brings a message"
leave_race

# ---- Music, its key, and a machine without sound ----

start_server
hear_music
hear_key
leave_race
stop_server
unset SDL_AUDIODRIVER
game=$whole_game
read_nine_messages
echo "passed: engine through its gears without gaps, silence in the menu, a server that goes away, music, its key, nine messages"
