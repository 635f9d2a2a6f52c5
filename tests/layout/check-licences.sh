#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Every file has a licence, and one only: it names it in its first lines, or REUSE.toml does for it. The packages'
# packaging/debian/copyright says the same, with the same texts; what is seen or heard is under CC BY 4.0, and so is what
# software catalogues show, who take no program's licence.
#   check-licences.sh ROOT
set -uo pipefail
shopt -s extglob
export LC_ALL=C
cd "$1" || exit 1
wrong=0
wrong() { # FILE MESSAGE
    echo "$1: $2"
    wrong=1
}

# ---- The files: those that git keeps; all of them where it keeps none ----

files=$(git -c safe.directory="$PWD" -c core.quotePath=false ls-files --error-unmatch . 2>/dev/null) ||
    files=$(find . \( -path ./build -o -path ./out -o -path ./.git \) -prune -o -type f -printf '%P\n')
mapfile -t files <<<"$files"
[ ${#files[@]} -gt 100 ] || { echo "only ${#files[@]} files were found"; exit 1; }

# ---- What the files say, what the lists say ----

# FILE: the licences that stand in its first three lines, separated by blanks.
declare -A own
while IFS=: read -r file line text; do
    [ "$line" -le 3 ] || continue
    licence=${text##*-Identifier: }
    own[$file]="${own[$file]:+${own[$file]} }${licence% -->}"
done < <(printf '%s\0' "${files[@]}" | xargs -0 grep -IHn 'SPDX-License[-]Identifier: ') # not this line

# In REUSE.toml `*` stands for a part of a name, `**` for folders too; here `*` does.
patterns=() licences=()
while IFS=$'\t' read -r licence pattern; do
    patterns+=("$(sed -e 's/\*\*/\r/g' -e 's/\*/+([^\/])/g' -e 's/\r/*/g' <<<"$pattern")")
    licences+=("$licence")
done < <(awk -F'"' '
    /^\[\[/ { count = 0 }
    /^ +"/ { paths[count++] = $2 }
    /^SPDX-License-Identifier = / { for (i = 0; i < count; ++i) print $2 "\t" paths[i] }' REUSE.toml)
[ ${#patterns[@]} -gt 0 ] || { echo "REUSE.toml: no pattern was found"; exit 1; }

# In the packages' list the last stanza that fits holds, and `*` stands for folders too.
stanzas=() stanza_licences=()
while IFS=$'\t' read -r licence pattern; do
    stanzas+=("$pattern")
    stanza_licences+=("$licence")
done < <(awk '
    /^Files: / { count = 0; reading = 1; $1 = "" }
    /^[A-Z]/ { reading = 0 }
    reading { for (i = 1; i <= NF; ++i) paths[count++] = $i }
    /^License: / { for (i = 0; i < count; ++i) print $2 "\t" paths[i]; count = 0 }' packaging/debian/copyright)
[ ${#stanzas[@]} -gt 0 ] || { echo "packaging/debian/copyright: no stanza was found"; exit 1; }

# ---- File by file ----

declare -A used
for file in "${files[@]}"; do
    # Of the texts themselves nothing is said.
    case $file in LICENSE | LICENSES/*) continue ;; esac
    found=${own[$file]:-}
    for i in "${!patterns[@]}"; do
        # shellcheck disable=SC2053
        [[ $file == ${patterns[$i]} ]] || continue
        found+="${found:+ }${licences[$i]}"
        used[${patterns[$i]}]=1
    done
    case $found in
    Zlib | CC-BY-4.0) ;;
    "") wrong "$file" "has no licence: name it in the first lines or in REUSE.toml"; continue ;;
    *) wrong "$file" "has not one of the two licences, once: $found"; continue ;;
    esac
    case $file in
    data/* | soundtracks/* | *.png | *.bmp | *.svg | *.ico | *.metainfo.xml) [ "$found" = CC-BY-4.0 ] ;;
    *) [ "$found" = Zlib ] ;;
    esac || wrong "$file" "should not be under $found"
    packaged=""
    for i in "${!stanzas[@]}"; do
        # shellcheck disable=SC2053
        [[ $file == ${stanzas[$i]} ]] && packaged=${stanza_licences[$i]}
    done
    [ "$packaged" = "$found" ] || wrong "$file" "is under $found, but packaging/debian/copyright says ${packaged:-nothing}"
done
for i in "${!patterns[@]}"; do
    [ -n "${used[${patterns[$i]}]:-}" ] || wrong REUSE.toml "no file fits ${patterns[$i]}"
done

# ---- The texts ----

for licence in Zlib CC-BY-4.0; do
    # Without its empty lines and its name and holder, which stand elsewhere in the packages' list.
    text=$(grep -vE '^$|^zlib License$|^Copyright ' "LICENSES/$licence.txt") || wrong "LICENSES/$licence.txt" "is missing"
    packaged=$(awk -v licence="$licence" '
        /^[A-Z]/ { inside = /^License: / && $2 == licence }
        inside && sub(/^ /, "") && $0 != "."' packaging/debian/copyright)
    [ "$text" = "$packaged" ] || wrong packaging/debian/copyright "has another text for $licence than LICENSES/"
done
[ "$(ls LICENSES)" = "$(printf 'CC-BY-4.0.txt\nZlib.txt')" ] || wrong LICENSES "holds other texts than the two"
[ $wrong = 0 ] && echo "${#files[@]} files, a licence each"
exit $wrong
