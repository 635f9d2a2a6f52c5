#!/usr/bin/env bash
# Runs a Windows program under Wine:
#   run.sh 32|64 PROGRAM ARGUMENT…
# Ends with the program's status, or with 77 and the reason where Wine cannot be had. 64-bit programs run under the
# system's Wine; 32-bit ones in a small i386 system of their own, which sees this one's project, temporary files
# and devices at the same places. That system and Wine's settings take a minute each to make: they are kept in the user's
# cache and made again where they are missing. VELKAR_WINE_PREFIX, in the cache or in /tmp, gives other settings.
set -euo pipefail
bits=$1
shift
cache=${XDG_CACHE_HOME:-$HOME/.cache}/velkar
system=$cache/i386
export LC_ALL=C.UTF-8 # without it Wine cannot write Italian letters into names of files
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
# The i386 system sees everything below the first folder on the way to the project. A server of Wine sees what its first
# program saw, so programs that see something else have another.
project=$(realpath "$(dirname "$0")/../..")
shared=${project#/}
shared=/${shared%%/*}
case $shared in /usr | /var | /etc) shared=$project ;; esac
export WINEPREFIX=${VELKAR_WINE_PREFIX:-$cache/windows$bits${shared//\//-}}
mkdir -p "$cache"
as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo -n --preserve-env)

skip() {
    echo "skipped: $*" >&2
    exit 77
}

# The mounts are seen by the command alone and end with it.
enter() {
    "${as_root[@]}" unshare --mount bash -c '
        system=$1 user=$2 folder=$3 cache=$4
        shift 3
        until [ "$1" = -- ]; do
            mkdir -p "$system$1" && mount --rbind "$1" "$system$1" || exit 77
            shift
        done
        shift
        exec chroot --userspec="$user" "$system" env --chdir="$folder" HOME="$cache" "$@"
    ' enter "$system" "$1" "$PWD" "$cache" /dev /proc /tmp "$shared" -- "${@:2}"
}

make_system() {
    [ -e "$system/made" ] && return
    command -v debootstrap >/dev/null || skip "debootstrap is not installed"
    "${as_root[@]}" true 2>/dev/null || skip "a 32-bit system needs root or sudo"
    echo "making a 32-bit system for Wine in $system" >&2
    "${as_root[@]}" rm -rf --one-file-system "$system"
    "${as_root[@]}" debootstrap --variant=minbase --arch=i386 --include=wine,wine32 bookworm "$system" >"$cache/wine32.log" 2>&1 ||
        skip "debootstrap cannot make a 32-bit system: $(tail -1 "$cache/wine32.log")"
    enter 0:0 env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
        libpulse0 libasound2-plugins gstreamer1.0-plugins-good gstreamer1.0-libav >>"$cache/wine32.log" 2>&1 ||
        skip "the 32-bit system cannot be completed: $(tail -1 "$cache/wine32.log")"
    "${as_root[@]}" touch "$system/made"
}

case $bits in
32)
    run() { enter "$(id -u):$(id -g)" "$@"; }
    ready() { make_system; }
    ;;
64)
    run() { "$@"; }
    ready() { command -v wine >/dev/null && [ -e /usr/lib/wine/wine64 ] || skip "the packages wine and wine64 are not installed"; }
    ;;
*)
    echo "usage: run.sh 32|64 PROGRAM ARGUMENT…" >&2
    exit 2
    ;;
esac

# One at a time makes what is missing; the others wait for it.
exec 9>"$cache/wine$bits.lock"
flock 9
ready
if [ ! -e "$WINEPREFIX/made" ]; then
    rm -rf "$WINEPREFIX"
    run wineboot -i >"$cache/wineboot$bits.log" 2>&1 9>&- && run wineserver -w 9>&- ||
        skip "Wine does not start here: $(tail -1 "$cache/wineboot$bits.log")"
    touch "$WINEPREFIX/made"
fi
# A server that stays for a while spares the next program its start, and a start at the moment of another's end.
run wineserver -p60 >/dev/null 2>&1 9>&- || true
exec 9>&-
# By way of files: programs of Wine's own that begin with this one outlive it and would hold a reader's pipe.
output=$(mktemp -d)
trap 'rm -rf "$output"' EXIT
status=0
run wine "$@" >"$output/out" 2>"$output/err" || status=$?
cat "$output/out"
cat "$output/err" >&2
exit $status
