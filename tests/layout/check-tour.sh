#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# What the pages name is there: every file and folder, in the tour's walks every procedure in its file, and wherever a
# link leads. The changelog begins with the version.
#   check-tour.sh ROOT VERSION
set -uo pipefail
cd "$1" || exit 1
wrong=0
seen=0

# Files and folders in backquotes, from the root.
for page in docs/architecture.md README.md CONTRIBUTING.md; do
    while read -r path; do
        seen=$((seen + 1))
        [ -e "$path" ] || { echo "$page: there is no $path"; wrong=1; }
    done < <(grep -oE '`[A-Za-z0-9_./-]+`' "$page" | tr -d '`' |
        grep -E '^(assets|audio|base|bench|console|data|docs|packaging|platform|program|render|scripts|shell|soundtracks|tests|tools|typeface|webcam|world)/' |
        grep -v NAME | sort -u)
done

# A step of a walk: "- `FILE`: `Name` …". Each name stands in the file, as a word.
while IFS= read -r line; do
    file=$(sed -E 's/^- `([^`]+)`.*/\1/' <<<"$line")
    while read -r name; do
        seen=$((seen + 1))
        grep -qw -- "$name" "$file" 2>/dev/null || { echo "docs/architecture.md: $file has no $name"; wrong=1; }
    done < <(sed 's/^- `[^`]*`//' <<<"$line" | grep -oE '`[A-Za-z_][A-Za-z0-9_]*`' | tr -d '`')
done < <(grep -E '^- `[^`]+\.(h|cpp)`:' docs/architecture.md)

# Links: to other pages from where they stand, and to the headings of the same page.
for page in *.md docs/*.md; do
    anchors=$(sed -n 's/^##* //p' "$page" | tr '[:upper:]' '[:lower:]' | sed "s/[^[:alnum:] _-]//g; s/ /-/g")
    while read -r link; do
        seen=$((seen + 1))
        case $link in
        *://*) ;;
        \#*) grep -qxF -- "${link#\#}" <<<"$anchors" || { echo "$page: there is no heading $link"; wrong=1; } ;;
        *) [ -e "$(dirname "$page")/${link%%#*}" ] || { echo "$page: there is no $link"; wrong=1; } ;;
        esac
    done < <(grep -oE '\]\([^) ]+\)' "$page" | sed 's/^](//; s/)$//' | sort -u)
done

version=$(sed -n 's/^## //p' CHANGELOG.md | head -1 | cut -d' ' -f1)
[ "$version" = "$2" ] || { echo "CHANGELOG.md: begins with $version, not with $2"; wrong=1; }

[ "$seen" -gt 100 ] || { echo "only $seen names were found: the pages are read wrongly"; exit 1; }
exit $wrong
