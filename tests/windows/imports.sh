#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# Fails where a Windows program imports a library that is not every Windows' own, by name or delayed.
#   imports.sh OBJDUMP PROGRAM
set -euo pipefail
objdump=$1 program=$2
system=" advapi32.dll comdlg32.dll gdi32.dll kernel32.dll msvcrt.dll ole32.dll shell32.dll user32.dll winmm.dll "

# Without a locale's words, and all of it: a program that objdump cannot read is no program without imports.
headers=$(LC_ALL=C "$objdump" -p "$program")
libraries=$(sed -n 's/^[[:space:]]*DLL Name: *\([^[:space:]]*\)[[:space:]]*$/\1/p' <<<"$headers" | tr '[:upper:]' '[:lower:]' | sort -u)
echo "$program imports" $libraries
grep -qx kernel32.dll <<<"$libraries" || { echo "FAILED: every program imports KERNEL32.dll, but none is found"; exit 1; }
grep -Eq '^Entry d 0+ 0+ Delay Import Directory' <<<"$headers" || { echo "FAILED: libraries are loaded with delay"; exit 1; }
foreign=""
for library in $libraries; do
    [[ $system == *" $library "* ]] || foreign="$foreign $library"
done
[ -z "$foreign" ] || { echo "FAILED: not the system's:$foreign"; exit 1; }
