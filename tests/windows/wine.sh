# What the tests of Windows programs share: Wine with a folder of Windows' own. Sourced after
# common.sh and before listen.sh.
# Making that folder takes seconds and 700 MB, so it is kept outside the checkout, and one test at a time has it.
for tool in wine wineserver flock; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is not installed"
        exit 77
    fi
done
cache=${XDG_CACHE_HOME:-$HOME/.cache}/velkar
export LC_ALL=C.UTF-8 # without it Wine cannot write Italian letters into names of files
export WINEDEBUG=-all WINEPREFIX=$cache/wine64
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" # nothing of it is needed, or asked for on the screen

# Needs the display. Its programs find the sound server by PULSE_SERVER; no card of the machine is heard or tested.
start_wine() {
    export ALSA_CONFIG_PATH=/dev/null
    mkdir -p "$cache"
    exec 9>"$WINEPREFIX.lock"
    flock 9
    endings=(stop_wine "${endings[@]}")
    local version
    version=$(wine --version 9>&-)
    [ "$(cat "$WINEPREFIX/made-by" 2>/dev/null)" = "$version" ] && return
    rm -rf "$WINEPREFIX"
    if ! timeout 300 wineboot -i >wineboot.log 2>&1 9>&- || ! wineserver -w 9>&-; then
        echo "skipped: Wine does not start here: $(tail -1 wineboot.log)"
        exit 77
    fi
    echo "$version" >"$WINEPREFIX/made-by"
}
# The server of that folder alone, and with it all programs in it.
stop_wine() { wineserver -k 9>&- || true; }
