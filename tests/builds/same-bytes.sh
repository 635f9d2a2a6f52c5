#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The same script gives the same answers and the same frames in every kind of build.
#   same-bytes.sh ROOT WORK VELKAR-DRIVE…
set -euo pipefail
root=$1 work=$2
shift 2
rm -rf "$work" && mkdir -p "$work"
cat >"$work/race.drive" <<'S'
random seed 2026
load
window menu.bmp
click cSTART
poke players[0].Control 1
run 9000
checksum
frame chase.bmp
depth chase.depth
poke players[0].Damage 4
poke players[1].Damage 8
poke camera.View 4
poke screen.TxtFilter 1
run 4000
checksum
peek players
frame smoke.bmp
poke players[0].Control 0
poke objects[5].X 300
key down 38
key down 37
run 3000
poke screen.TxtFilter 0
poke camera.View 1
run 1000
checksum
frame driver.bmp
S
# Each in a folder of its own, all at once: those with sanitizers take as long as the others together.
numbers=() pids=()
end_drives() { kill "${pids[@]}" 2>/dev/null || true; }
trap end_drives EXIT
for drive in "$@"; do
    numbers+=($((${#numbers[@]} + 1)))
    [ -x "$drive" ] || continue
    folder=$work/${#numbers[@]}
    mkdir "$folder"
    (cd "$folder" && "$drive" --root "$root" ../race.drive >answers.txt 2>../errors-${#numbers[@]}.txt) &
    pids[${#numbers[@]}]=$!
done
first=""
seen=0
for number in "${numbers[@]}"; do
    drive=${!number}
    folder=$work/$number
    if [ ! -d "$folder" ]; then
        echo "not built: $drive"
        continue
    fi
    status=0
    wait "${pids[$number]}" || status=$?
    cat "$work/errors-$number.txt"
    [ $status = 77 ] && continue # it has said why
    [ $status = 0 ] || { echo "failed: $drive"; exit 1; }
    seen=$((seen + 1))
    first=${first:-$folder}
    for file in "$first"/*; do
        cmp "$file" "$folder/${file##*/}" || { echo "$drive gives other bytes"; exit 1; }
    done
done
if [ "$seen" -lt 2 ]; then
    echo "skipped: only one kind of build is here; scripts/test builds all of them"
    exit 77
fi
echo "$seen builds agree"
