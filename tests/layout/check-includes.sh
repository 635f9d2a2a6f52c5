#!/usr/bin/env bash
# Every #include of the game points down the folder table, and no system header stands outside a back end.
#   check-includes.sh ROOT
set -uo pipefail
cd "$1" || exit 1

# folder: the folders it may include from, itself among them
declare -A may=(
    [program]="platform shell base program"
    [base]="base"
    [platform]="base platform"
    [render]="base render"
    [world]="base render world"
    [console]="base platform render world console"
    [audio]="base platform audio"
    [webcam]="base platform render webcam"
    [typeface]="base typeface"
    [shell]="base typeface platform render world console audio webcam shell"
)
wrong=0
seen=0
for folder in "${!may[@]}"; do
    [ -d "$folder" ] || continue
    while IFS=: read -r file line include; do
        seen=$((seen + 1))
        target=${include#*\"}
        case " ${may[$folder]} " in
        *" ${target%%/*} "*) ;;
        *)
            echo "$file:$line: $folder/ may not include $target"
            wrong=1
            ;;
        esac
    done < <(grep -rnE --include='*.h' --include='*.cpp' '^#include "' "$folder" | sed -E 's/#include //')
    while IFS=: read -r file line include; do
        case "$file" in
        platform/sdl/* | platform/win32/*) continue ;;
        esac
        echo "$file:$line: no system header here: $include"
        wrong=1
    done < <(grep -rnE --include='*.h' --include='*.cpp' '^#include <([a-z0-9_/]+\.h|SDL.*)>' "$folder" |
        grep -v '<emmintrin.h>') # the compiler's own: the same on every system
    while IFS=: read -r file line text; do
        case "$file" in
        platform/*) continue ;;
        esac
        echo "$file:$line: the game does not ask where it runs: $text"
        wrong=1
    done < <(grep -rnE --include='*.h' --include='*.cpp' '^#.*\b(_WIN32|__linux__|__unix__)\b' "$folder")
done
[ "$seen" -gt 0 ] || { echo "no include found at all"; exit 1; }
exit $wrong
