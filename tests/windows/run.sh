#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Runs a Windows program under Wine:
#   run.sh 32|64 PROGRAM ARGUMENT…
# Ends with the program's status, or with 77 and the reason where Wine cannot be had: see wine.sh.
set -euo pipefail
source "$(dirname "$0")/wine.sh"
use_wine "$1"
shift
# A server that stays for a while spares the next program its start, and a start at the moment of another's end.
"${inside[@]}" wineserver -p60 >/dev/null 2>&1 || true
# By way of files: programs of Wine's own that begin with this one outlive it and would hold a reader's pipe.
output=$(mktemp -d)
trap 'rm -rf "$output"' EXIT
status=0
"${inside[@]}" wine "$@" >"$output/out" 2>"$output/err" || status=$?
cat "$output/out"
cat "$output/err" >&2
exit $status
