#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The icons have the sizes of their names, and show what scripts/make-icons draws from the emblem as it is.
#   check-icons.sh ROOT
set -euo pipefail
cd "$1"
for program in rsvg-convert compare identify; do
    command -v $program >/dev/null || { echo "skipped: $program is not installed"; exit 77; }
done
drawn=$(mktemp -d)
trap 'rm -r "$drawn"' EXIT
scripts/make-icons "$drawn"
wrong=0
for size in 16 32 48 64 128 256 512; do
    icon=packaging/icons/$size.png
    [ -e "$icon" ] || { echo "$icon is missing"; wrong=1; continue; }
    shape=$(identify -format '%wx%h' "$icon")
    [ "$shape" = "${size}x$size" ] || { echo "$icon has $shape pixels"; wrong=1; continue; }
    # Not to the byte: another version of the program that draws them rounds otherwise. As a share of full scale.
    apart=$(compare -metric RMSE "$icon" "$drawn/$size.png" null: 2>&1 | sed -E 's/.*\((.*)\)/\1/') || true
    awk -v apart="$apart" 'BEGIN { exit !(apart ~ /^[0-9.e-]+$/ && apart < 0.02) }' ||
        { echo "$icon is not what scripts/make-icons draws: $apart apart"; wrong=1; }
done
exit $wrong
