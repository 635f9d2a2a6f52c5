#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Runs a driver script that writes bitmaps and compares them with the stored pictures.
#   check-frame.sh VELKAR-DRIVE COMPARE ROOT SCRIPT EXPECTED WORK [TOLERANCE]
# EXPECTED is the picture of the one bitmap that the script writes, or a folder with a picture of every one of them.
# VELKAR_ACCEPT=1 stores what was drawn instead.
set -euo pipefail
drive=$1 compare=$2 root=$3 script=$4 expected=$5 work=$6 tolerance=${7:-0}
if ! command -v convert >/dev/null; then
    echo "skipped: imagemagick is not installed, and the stored pictures are PNG files"
    exit 77
fi
picture_of() { if [[ $expected == *.png ]]; then echo "$expected"; else echo "$expected/${1%.bmp}.png"; fi; }

rm -rf "$work" && mkdir -p "$work" && cd "$work"
"$drive" --root "$root" "$script" >answers.txt || { status=$?; cat answers.txt; exit $status; }
shopt -s nullglob
drawn=(*.bmp)
if [ "${VELKAR_ACCEPT:-}" = 1 ]; then
    [[ $expected == *.png ]] || mkdir -p "$expected"
    for bitmap in "${drawn[@]}"; do
        convert "$bitmap" -strip -define png:compression-level=9 "$(picture_of "$bitmap")"
        echo "stored $(picture_of "$bitmap")"
    done
    exit 0
fi
wrong=0
stored=1
[[ $expected == *.png ]] || { pictures=("$expected"/*.png); stored=${#pictures[@]}; }
if [ "${#drawn[@]}" != "$stored" ] || [ "$stored" = 0 ]; then
    echo "${#drawn[@]} pictures were drawn, $stored are stored"
    wrong=1
fi
mkdir expected difference
for bitmap in "${drawn[@]}"; do
    convert "$(picture_of "$bitmap")" -type TrueColor -depth 8 -define bmp:format=bmp3 "BMP3:expected/$bitmap"
    "$compare" "expected/$bitmap" "$bitmap" "difference/$bitmap" "$tolerance" || { echo "$bitmap differs"; wrong=1; }
done
exit $wrong
