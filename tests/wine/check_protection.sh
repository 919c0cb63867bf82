#!/usr/bin/env bash
# check_protection.sh PROGRAM LIBRARY FLAG...: the program's header asks for each protection by its name, it can be laid
# anywhere in memory, and the functions of the library have a guard behind their locals, at which the program ends.
set -euo pipefail
export LC_ALL=C
program=$1 library=$2
shift 2
headers=$(x86_64-w64-mingw32-objdump -p "$program")
for flag in "$@"; do
  grep -q "^[[:space:]]*$flag\$" <<<"$headers" || { echo "The header doesn't ask for $flag" && exit 1; }
done
grep -qE '^Entry 5 0*[1-9a-f][0-9a-f]* 0*[1-9a-f][0-9a-f]* Base Relocation' <<<"$headers" || {
  echo "The program has no relocations: it can't be moved"
  exit 1
}
guarded=$(x86_64-w64-mingw32-nm --undefined-only "$library" | grep -c ' __*stack_chk_fail$' || true)
echo "$guarded files with guarded functions"
[ "$guarded" -ge 10 ]
# The status that the program ends with where a guard was written over.
x86_64-w64-mingw32-objdump -d "$program" | grep -i '0xc0000409' >/dev/null || {
  echo "Nothing in the program answers a broken guard"
  exit 1
}
