#!/usr/bin/env bash
# check_size.sh PROGRAM BYTES: the program, stripped, is no larger.
set -euo pipefail
stripped=$(mktemp)
trap 'rm -f "$stripped"' EXIT
x86_64-w64-mingw32-strip -o "$stripped" "$1"
size=$(stat -c %s "$stripped")
echo "$size bytes, at most $2"
[ "$size" -le "$2" ]
