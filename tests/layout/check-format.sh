#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The sources stand as the formatter would write them.
#   check-format.sh ROOT
set -uo pipefail
cd "$1" || exit 1
if ! command -v clang-format >/dev/null; then
    echo "skipped: clang-format is not installed"
    exit 77
fi
# Every folder, so that a new one is not forgotten; but what is built is not written by hand.
mapfile -t files < <(find . \( -path ./build -o -path ./out -o -name '.?*' \) -prune -o \
    \( -name '*.h' -o -name '*.cpp' \) -print)
[ ${#files[@]} -gt 0 ] || { echo "no source found"; exit 1; }
clang-format --dry-run -Werror "${files[@]}"
