#!/usr/bin/env bash
# play_all.sh PLAYER: plays every scenario with that player; prints those that don't print what they must.
set -euo pipefail
player=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")"
printf '%s\0' *.scn | sed -z 's/\.scn$//' | xargs -0 -P "$(nproc)" -I{} ./run_scenario.sh "$player" {}.scn {}.out
