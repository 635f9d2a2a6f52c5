#!/usr/bin/env bash
# The sources stand as the formatter would write them.
#   check-format.sh ROOT
set -uo pipefail
cd "$1" || exit 1
if ! command -v clang-format >/dev/null; then
    echo "skipped: clang-format is not installed"
    exit 77
fi
mapfile -t files < <(find assets base bench console audio webcam platform render program shell tests tools typeface world \
    \( -name '*.h' -o -name '*.cpp' \) 2>/dev/null)
[ ${#files[@]} -gt 0 ] || { echo "no source found"; exit 1; }
clang-format --dry-run -Werror "${files[@]}"
