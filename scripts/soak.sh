#!/usr/bin/env bash
# Turns the month ten times a second to and fro on a full calendar under Wine, and counts what the program gathers:
# scripts/soak.sh [MINUTES], 30 unless told. The exit status is 1 if it has more GDI objects, windows or handles at the end
# than after a fifth, if its private memory grows by more than 32 kB over the second half, or if a month didn't change. That
# finds a string of 5 bytes a change in 30 minutes, and of 50 in 3.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
cd "$root"
need_packages build wine
configure windows-x64
build windows-x64 meridex bench_object_count desktop_probe
exec python3 -B bench/soak.py "$@" </dev/null
