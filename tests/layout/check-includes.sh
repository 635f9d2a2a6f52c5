#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The folders keep to their places: every #include points down the folder table, no system header stands outside a back
# end, a namespace is named for its folder, and what tests share is for tests and benchmarks.
#   check-includes.sh ROOT
set -uo pipefail
cd "$1" || exit 1

# folder: the folders and files it may include from. The longest folder that a file lies in counts.
declare -A may=(
    [base]="base"
    [typeface]="base typeface"
    [platform]="base platform"
    [render]="base render"
    [world]="base render world"
    [console]="base platform render world console"
    [audio]="base platform audio"
    [webcam]="base platform render webcam"
    [shell/forms]="base platform render/PicArray.h typeface shell/forms"
    [shell/panels]="base platform render world audio webcam typeface shell/forms shell/panels shell/Game.h"
    [shell]="base platform render world console audio webcam typeface shell"
    [program]="base platform shell program"
    [tools]="base typeface platform render world console audio webcam shell tools"
    [assets]="base typeface assets"
    [bench]="base typeface platform render world console audio webcam shell tools bench tests/support"
)
# folder: its namespace; a folder below it has the same unless it stands here too. What of a system is no device of a
# back end (platform/StandardStreams.h and the like) belongs to the platform itself.
declare -A called=(
    [base]=base [typeface]=typeface [render]=render [render/wide]="render::VELKAR_WIDE render" [world]=world [console]=console [audio]=audio [webcam]=webcam
    [platform]=platform [platform/headless]=headless [platform/sdl]=sdl [platform/win32]="win32 platform"
    [shell]=shell [shell/forms]=forms [shell/panels]=panels [program]=program [tools/drive]=drive [tools/race]=race
    [tools/preview]=preview
    [assets]=assets [assets/cars]=assets::cars [assets/hud]=assets::hud [assets/sound]=assets::sound
    [assets/track]=assets::track [bench]=bench [tests/support]=support
)
# Where system headers belong: the back ends, and the encoders of music and of pictures.
system='^(platform/(sdl|win32)/|assets/sound/Mp3\.cpp|tools/preview/Png\.cpp)'
# The compiler's own, the same on every system; and the library of the benchmarks.
everywhere='<([ei]mmintrin\.h|benchmark/benchmark\.h)>'

wrong=0
wrong() { # FILE:LINE MESSAGE
    echo "$1: $2"
    wrong=1
}
# home FILE TABLE: the longest folder of the table that the file lies in; nothing where there is none.
home() {
    local folder=${1%/*}
    local -n table=$2
    while [ -z "${table[$folder]:-}" ]; do
        [[ $folder == */* ]] || return 0
        folder=${folder%/*}
    done
    echo "$folder"
}
# lines REGEX FOLDER…: FILE:LINE:TEXT of every line of a source that matches.
lines() {
    local regex=$1
    shift
    grep -rnE --include='*.h' --include='*.cpp' "$regex" "$@"
}
# is_allowed TARGET PLACE…: whether the target is one of the places or below one.
is_allowed() {
    local target=$1 place
    shift
    for place in "$@"; do
        [[ $target == "$place" || $target == "$place"/* ]] && return
    done
    return 1
}

folders=()
for folder in "${!may[@]}"; do
    [[ $folder == */* ]] || folders+=("$folder")
done
# A folder with sources that no rule is about would be forgotten.
for folder in */; do
    folder=${folder%/}
    case $folder in tests | build | out) continue ;; esac
    [ -n "${may[$folder]:-}" ] || [ -z "$(find "$folder" -name '*.h' -o -name '*.cpp' | head -1)" ] ||
        wrong "$folder" "has sources, but stands in no rule"
done

seen=0
while IFS=: read -r file line include; do
    seen=$((seen + 1))
    target=${include#*\"}
    target=${target%%\"*}
    folder=$(home "$file" may)
    # shellcheck disable=SC2086
    is_allowed "$target" ${may[$folder]} || wrong "$file:$line" "$folder/ may not include $target"
done < <(lines '^#include "' "${folders[@]}")
[ "$seen" -gt 0 ] || { echo "no include found at all"; exit 1; }

while IFS=: read -r file line include; do
    [[ $file =~ $system ]] || [[ $include =~ $everywhere ]] || wrong "$file:$line" "no system header here: $include"
done < <(lines '^#include <([A-Za-z0-9_/]+\.h|SDL.*)>' "${folders[@]}")

while IFS=: read -r file line text; do
    [[ $file == platform/* ]] || wrong "$file:$line" "the game does not ask where it runs: $text"
done < <(lines '^#.*\b(_WIN32|__linux__|__unix__)\b' "${folders[@]}")

# At the beginning of a line a namespace is opened in the file, further in within another.
seen=0
while IFS=: read -r file line text; do
    seen=$((seen + 1))
    folder=$(home "$file" called)
    [ -n "$folder" ] || { wrong "$file:$line" "this folder has no namespace: $text"; continue; }
    name=$(sed -E 's/^(inline )?namespace +//; s/[ {].*//' <<<"$text")
    [[ " ${called[$folder]} " == *" $name "* ]] ||
        wrong "$file:$line" "namespace $name in $folder/, whose own is ${called[$folder]}"
done < <(lines '^(inline )?namespace +[A-Za-z]' "${folders[@]}" tests/support |
    grep -vE 'namespace +[A-Za-z]+ *=') # another name for one
[ "$seen" -gt 0 ] || { echo "no namespace found at all"; exit 1; }
exit $wrong
