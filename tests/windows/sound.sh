#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Listens to the Windows program in Wine: the engine, the music, and what a machine without sound is told.
#   sound.sh 32|64 VELKAR VELKAR-DRIVE ROOT WORK SOUND-PROBE
# VELKAR-DRIVE and SOUND-PROBE are programs of this system.
width=$1
shift
windows=$(realpath "$(dirname "$0")") desktop=$windows/../desktop
for tool in "$2" "$5"; do
    if ! [ -x "$tool" ]; then
        echo "skipped: $tool is not built"
        exit 77
    fi
done
probe=$(realpath "$5")
source "$desktop/common.sh"
source "$windows/desktop-wine.sh"
source "$desktop/listen.sh"
last_tone=d.mp3 # Debian's usual decoders leave Windows Media out

program=$game
# What is started by the name of the game.
put_game() {
    cp "$program" "$1/velkar.exe"
    put_program "$1/velkar.exe" "$1/velkar"
}

start_display
start_server
start_wine "$width"
hear_engine
hear_menu_and_race
leave_race
hear_music
hear_key
leave_race
stop_server
read_nine_messages
echo "passed: engine through its gears without gaps, silence in the menu, music, its key, nine messages"
