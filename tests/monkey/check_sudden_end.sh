#!/usr/bin/env bash
# check_sudden_end.sh MONKEY PLAYER: the way to where a monkey's process was ended from outside can be played again.
set -euo pipefail
folder=$(mktemp -d)
trap 'kill -KILL "$process" 2>/dev/null || true; rm -rf "$folder"' EXIT
cd "$folder"
"$1" 4 1000000 >/dev/null &
process=$!
deadline=$((SECONDS + 60))
until [ -e monkey_4.scn ] && [ "$(wc -l <monkey_4.scn)" -ge 100 ]; do
  if [ $SECONDS -ge $deadline ] || ! kill -0 "$process"; then
    echo 'no way is written down while the monkey plays' >&2
    exit 1
  fi
  sleep 0.05
done
kill -KILL "$process"
wait "$process" || true
sed -i '$d' monkey_4.scn  # the line that was being written
"$2" monkey_4.scn >/dev/null

"$1" 4 1 >/dev/null
if [ -e monkey_4.scn ]; then
  echo 'a run that went well has left a way to a failure' >&2
  exit 1
fi
