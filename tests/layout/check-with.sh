#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# A checker finds no mistake, and warns of nothing.
#   check-with.sh CHECKER ARGUMENT…
set -uo pipefail
if ! command -v "$1" >/dev/null; then
    echo "skipped: $1 is not installed"
    exit 77
fi
said=$("$@" 2>&1)
status=$?
[ -z "$said" ] || echo "$said"
[ $status = 0 ] || exit 1
# What begins so is a mistake, a warning or a hint: some checkers end with 0 all the same.
! grep -qE '^[EWI]: |: (error|warning|hint): ' <<<"$said"
