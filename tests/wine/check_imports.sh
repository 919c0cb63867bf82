#!/usr/bin/env bash
# check_imports.sh PROGRAM LIST: the 32-bit program imports nothing that the list doesn't hold.
#
# The list holds what Windows 98 and NT 4 both have, a line "dll!function" each, as far as the program uses it. A new line
# belongs there only after a look into the documentation of that function.
set -euo pipefail
imports=$(i686-w64-mingw32-objdump -p "$1" |
  awk '/DLL Name/ { dll = tolower($3); next } dll != "" && NF == 3 && $1 ~ /^[0-9a-f]+$/ { print dll "!" $3 }')
[ -n "$imports" ]
strangers=$(comm -23 <(sort -u <<<"$imports") <(grep -v '^#' "$2" | sort -u))
[ -z "$strangers" ] || {
  printf 'Imported, and not in %s:\n%s\n' "$2" "$strangers"
  exit 1
}
