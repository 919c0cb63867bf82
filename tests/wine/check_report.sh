#!/usr/bin/env bash
# check_report.sh PROGRAM: what can't be caught is reported by the program's box. The run-time library's own report isn't
# linked: nobody would read what it writes.
set -euo pipefail
grep -aq 'There is not enough memory.' "$1" || { echo "Not the program: its own report isn't in it" && exit 1; }
if grep -aq 'terminate called' "$1"; then
  echo "The run-time library's report is linked"
  exit 1
fi
