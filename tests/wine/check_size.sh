#!/usr/bin/env bash
# check_size.sh BUILD BYTES: the program, stripped, is no larger.
set -euo pipefail
program=$(find "$1/src" -name meridex.exe)
stripped=$(mktemp)
trap 'rm -f "$stripped"' EXIT
x86_64-w64-mingw32-strip -o "$stripped" "$program"
size=$(stat -c %s "$stripped")
echo "$size bytes, at most $2"
[ "$size" -le "$2" ]
