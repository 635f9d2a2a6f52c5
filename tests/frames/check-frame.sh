#!/usr/bin/env bash
# Runs a driver script that writes actual.bmp and compares it with the stored picture.
#   check-frame.sh VELKAR-DRIVE COMPARE ROOT SCRIPT EXPECTED.png WORK [TOLERANCE]
# VELKAR_ACCEPT=1 stores what was drawn instead.
set -euo pipefail
drive=$1 compare=$2 root=$3 script=$4 expected=$5 work=$6 tolerance=${7:-0}
if ! command -v convert >/dev/null; then
    echo "skipped: imagemagick is not installed, and the stored pictures are PNG files"
    exit 77
fi
rm -rf "$work" && mkdir -p "$work" && cd "$work"
"$drive" --root "$root" "$script" >answers.txt || { cat answers.txt; exit 1; }
if [ "${VELKAR_ACCEPT:-}" = 1 ]; then
    convert actual.bmp -strip -define png:compression-level=9 "$expected"
    echo "stored $expected"
    exit 0
fi
convert "$expected" -type TrueColor -depth 8 -define bmp:format=bmp3 BMP3:expected.bmp
"$compare" expected.bmp actual.bmp difference.bmp "$tolerance"
