# SPDX-License-Identifier: Zlib
# What the tests of Windows programs on the display share: Wine with settings that one test at a time has. Sourced after
# common.sh and before listen.sh, with `windows`, the folder of this file.
source "$windows/wine.sh"

# start_wine 32|64: needs the display. Its programs find the sound server by PULSE_SERVER; no card of the machine is
# heard or tested.
start_wine() {
    export ALSA_CONFIG_PATH=/dev/null VELKAR_WINE_PREFIX=$cache/desktop$1
    mkdir -p "$cache"
    exec 9>"$VELKAR_WINE_PREFIX.lock"
    flock 9
    use_wine "$1"
    endings=(stop_wine "${endings[@]}")
}
# The server of those settings alone, and with it all programs under it. For tests without Wine before too.
stop_wine() { "${inside[@]}" wineserver -k 9>&- || true; }
# put_program PROGRAM SCRIPT: a script of that name that becomes the program.
put_program() {
    printf '#!/bin/sh\nexec "%s/play.sh" %s "%s" 9>&-\n' "$windows" "$bits" "$(realpath "$1")" >"$2"
    chmod +x "$2"
}
