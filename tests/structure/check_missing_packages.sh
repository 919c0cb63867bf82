#!/usr/bin/env bash
# Where the packages of the 32-bit run can't be had, it ends with status 2 and tells so in its last line.
set -euo pipefail
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
put_command() { # NAME LINE
  printf '#!/bin/sh\n%s\n' "$2" >"$commands/$1"
  chmod +x "$commands/$1"
}
put_command id 'echo 0'
put_command dpkg-query 'exit 1'
put_command apt-get 'exit 1'
put_command sudo 'exec "$@"'
put_command sleep 'exit 0'
status=0
said=$(PATH=$commands:$PATH scripts/test-32-bit.sh 2>&1) || status=$?
[ $status -eq 2 ] || { echo "It ended with status $status" && exit 1; }
grep -q '^THE 32-BIT PROGRAM WAS NOT TESTED' <<<"${said##*$'\n'}" || {
  printf 'The last line is another one:\n%s\n' "$said"
  exit 1
}
