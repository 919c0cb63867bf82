#!/usr/bin/env bash
# check_libraries.sh PROGRAM LIBRARY...: the program imports from these libraries and from no other.
set -euo pipefail
export LC_ALL=C
program=$1
shift
found=$(x86_64-w64-mingw32-objdump -p "$program" | awk '/DLL Name/ { print tolower($3) }' | sort -u)
[ "$found" = "$(printf '%s\n' "$@" | sort -u)" ] || {
  printf 'Imported from:\n%s\n' "$found"
  exit 1
}
