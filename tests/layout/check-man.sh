#!/usr/bin/env bash
# SPDX-License-Identifier: Zlib
# The manual pages are well-formed, and each says the same options in every language.
#   check-man.sh FOLDER      English pages in it, the others below it, each language in a folder of its own
set -uo pipefail
shopt -s nullglob
cd "$1" || exit 1
wrong=0
options() { grep -oE '\\-\\-[a-z]+' "$1" | sort -u; }

pages=(*.[1-9])
[ ${#pages[@]} -gt 1 ] || { echo "there are no pages in $1"; exit 1; }
for page in "${pages[@]}"; do
    for other in */"$page"; do
        diff <(options "$page") <(options "$other") || { echo "$other has other options than $page"; wrong=1; }
    done
done
for other in */*; do
    [ -e "${other#*/}" ] || { echo "$other is not there in English"; wrong=1; }
done
[ $wrong = 0 ] || exit 1

if ! command -v mandoc >/dev/null; then
    echo "skipped: mandoc is not installed"
    exit 77
fi
mandoc -T lint "${pages[@]}" */*
