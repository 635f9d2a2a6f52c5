#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Becomes a Windows program on the display, for tests that have made Wine ready:
#   play.sh 32|64 PROGRAM
set -euo pipefail
source "$(dirname "$0")/wine.sh"
use_wine "$1"
# sudo's process belongs to root, and whether that one lives its user cannot ask: this one ends with it.
[ "$1" = 64 ] || [ ${#as_root[@]} -eq 0 ] || { "${inside[@]}" wine "$2"; exit; }
exec "${inside[@]}" wine "$2"
