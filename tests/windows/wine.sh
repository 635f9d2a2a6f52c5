# SPDX-License-Identifier: Zlib
# Wine for Windows programs of either width. Sourced; then:
#   use_wine 32|64     says which, and makes what it needs where that is missing; ends with 77 and the reason where Wine
#                      cannot be had
#   "${inside[@]}" COMMAND ARGUMENT…    runs wine, wineserver or another command there
# 64-bit programs run under the system's Wine; 32-bit ones in a small i386 system of their own, which sees this one's
# project, temporary files and devices at the same places. That system and Wine's settings take a minute each to make:
# they are kept in the user's cache. VELKAR_WINE_PREFIX, in the cache or in /tmp, gives other settings.
export XDG_CACHE_HOME=${XDG_CACHE_HOME:-$HOME/.cache} # a test may give its programs another home
cache=$XDG_CACHE_HOME/velkar
system=$cache/i386
# The i386 system sees everything below the first folder on the way to the project. A server of Wine sees what its first
# program saw, so programs that see something else have another.
project=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
shared=${project#/}
shared=/${shared%%/*}
case $shared in /usr | /var | /etc) shared=$project ;; esac
export LC_ALL=C.UTF-8 # without it Wine cannot write Italian letters into names of files
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo -n --preserve-env)
inside=()

skip() {
    echo "skipped: $*" >&2
    exit 77
}

# enter_as USER:GROUP: commands go into the 32-bit system. The mounts are seen by the command alone and end with it; it
# has the process number it was started with, but for sudo's.
enter_as() {
    # shellcheck disable=SC2016
    inside=("${as_root[@]}" unshare --mount bash -c '
        system=$1 user=$2 folder=$3 cache=$4
        shift 3
        until [ "$1" = -- ]; do
            mkdir -p "$system$1" && mount --rbind "$1" "$system$1" || exit 77
            shift
        done
        shift
        exec chroot --userspec="$user" "$system" env --chdir="$folder" HOME="$cache" "$@"
    ' enter "$system" "$1" "$PWD" "$cache" /dev /proc /tmp "$shared" --)
}

make_system() {
    [ -e "$system/made" ] && return
    command -v debootstrap >/dev/null || skip "debootstrap is not installed"
    "${as_root[@]}" true 2>/dev/null || skip "a 32-bit system needs root or sudo"
    echo "making a 32-bit system for Wine in $system" >&2
    "${as_root[@]}" rm -rf --one-file-system "$system"
    "${as_root[@]}" debootstrap --variant=minbase --arch=i386 --include=wine,wine32 bookworm "$system" >"$cache/wine32.log" 2>&1 ||
        skip "debootstrap cannot make a 32-bit system: $(tail -1 "$cache/wine32.log")"
    enter_as 0:0
    "${inside[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
        libpulse0 libasound2-plugins gstreamer1.0-plugins-good gstreamer1.0-libav >>"$cache/wine32.log" 2>&1 ||
        skip "the 32-bit system cannot be completed: $(tail -1 "$cache/wine32.log")"
    "${as_root[@]}" touch "$system/made"
}

use_wine() {
    bits=$1
    case $bits in 32 | 64) ;; *)
        echo "the width of a Windows program is 32 or 64, not $bits" >&2
        exit 2
        ;;
    esac
    export WINEPREFIX=${VELKAR_WINE_PREFIX:-$cache/windows$bits${shared//\//-}}
    mkdir -p "$cache"
    # One at a time makes what is missing; the others wait for it.
    exec 8>"$cache/wine$bits.lock"
    flock 8
    if [ "$bits" = 32 ]; then
        make_system 8>&-
        enter_as "$(id -u):$(id -g)"
    else
        command -v wine >/dev/null && [ -e /usr/lib/wine/wine64 ] || skip "the packages wine and wine64 are not installed"
    fi
    if [ ! -e "$WINEPREFIX/made" ]; then
        rm -rf "$WINEPREFIX"
        "${inside[@]}" wineboot -i >"$cache/wineboot$bits.log" 2>&1 8>&- && "${inside[@]}" wineserver -w 8>&- ||
            skip "Wine does not start here: $(tail -1 "$cache/wineboot$bits.log")"
        touch "$WINEPREFIX/made"
    fi
    exec 8>&-
}
