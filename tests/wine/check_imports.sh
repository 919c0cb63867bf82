#!/usr/bin/env bash
# check_imports.sh PROGRAM LIST: the 32-bit program imports nothing that the list doesn't hold, and asks for
# Windows 4.0 and no newer one.
#
# The list holds functions that Windows 98 and NT 4 both have, a line "dll!function" each. A new line belongs there only
# after a look into the documentation of that function.
set -euo pipefail
export LC_ALL=C
headers=$(i686-w64-mingw32-objdump -p "$1")
for field in 'MajorSubsystemVersion[[:space:]]*4' 'MinorSubsystemVersion[[:space:]]*0' 'MajorOSystemVersion[[:space:]]*4'; do
  grep -q "^$field\$" <<<"$headers" || { echo "The program asks for a newer system: not $field" && exit 1; }
done
imports=$(
  awk '/DLL Name/ { dll = tolower($3); next } dll != "" && NF == 3 && $1 ~ /^[0-9a-f]+$/ { print dll "!" $3 }' <<<"$headers"
)
[ -n "$imports" ]
strangers=$(comm -23 <(sort -u <<<"$imports") <(grep -v '^#' "$2" | sort -u))
[ -z "$strangers" ] || {
  printf 'Imported, and not in %s:\n%s\n' "$2" "$strangers"
  exit 1
}
