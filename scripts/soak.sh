#!/usr/bin/env bash
# Turns the month once a second on a full calendar under Wine, and counts what the program gathers: scripts/soak.sh [MINUTES]
# 30 minutes unless told. The exit status is 1 if it has more GDI objects, handles or memory at the end than after a fifth.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
cd "$root"
need_packages build wine
configure windows-x64
build windows-x64 meridex bench_gdi_count desktop_probe
exec python3 -B bench/soak.py "${1:-30}" </dev/null
