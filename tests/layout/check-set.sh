#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# What the objects of a set of pixel loops share with the rest of the program is compiled elsewhere: an inline function
# that they held would be one of many, and the linker might take theirs for a processor that cannot run it.
#   check-set.sh NM SET OBJECT…
set -euo pipefail
nm=$1 set=$2
shift 2
for object in "$@"; do
    [ -e "$object" ] || { echo "skipped: $object has not been built"; exit 77; }
done
symbols=$("$nm" -C --defined-only "$@")
grep -q "render::$set::DrawGroundBand" <<<"$symbols" || { echo "these are not the objects of $set"; exit 1; }
# W, V, u: one of many definitions is taken. Sanitizers and debuggers bring names of their own that begin with a dot,
# "DW." or "asan.".
shared=$(grep -E ' [WVu] ' <<<"$symbols" | grep -vE " [WVu] (vtable for |guard variable for )?(render::$set::|DW\\.|asan\\.|\\.)" || true)
[ -z "$shared" ] || { echo "shared with the rest of the program:"; echo "$shared"; exit 1; }
echo "$(wc -l <<<"$symbols") symbols, none shared"
