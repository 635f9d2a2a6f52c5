#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# What scripts/play does where there is no display: a whole race, its pictures and its standings.
#   headless.sh ROOT VELKAR-DRIVE WORK
set -euo pipefail
root=$1 drive=$2 work=$3
rm -rf "$work"
"$root/scripts/race-headless" "$drive" "$work"
pictures=$(find "$work" -name '*.bmp' -size +500k | wc -l)
[ "$pictures" -ge 8 ] || { echo "only $pictures pictures"; exit 1; }
[ "$(grep -c '^ *[1-8]\. auto [1-8] ' "$work/standings.txt")" = 8 ] || { echo "no standings of eight cars"; exit 1; }
[ -e "$work/9-collisione.bmp" ] || { echo "no picture of a collision"; exit 1; }
