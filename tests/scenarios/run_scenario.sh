#!/bin/sh
# run_scenario.sh PLAYER NAME.scn NAME.out: plays the scenario and compares what it prints with the expected output, byte
# for byte. Shows the difference and fails if there is one, or if it can't be played.
set -u
printed=$(mktemp) || exit 1
trap 'rm -f "$printed"' EXIT

"$1" "$2" >"$printed"
status=$?
if [ "$status" -ne 0 ]; then
  cat "$printed"
  echo "the player ended with status $status" >&2
  exit 1
fi
diff --text -u --label expected --label played "$3" "$printed"
