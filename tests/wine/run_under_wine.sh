#!/usr/bin/env bash
# run_under_wine.sh PROGRAM [ARGUMENT]...: runs a Windows program under Wine, with a prefix and a display of its own, in an
# empty folder of its own, in British English unless LC_ALL says otherwise. The exit status is the program's.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$root/scripts/lib/wine.sh"

program=$(realpath "$1")
shift
scratch=$(mktemp -d)
trap 'end_wine; rm -rf "$scratch"' EXIT
trap 'exit 143' INT TERM

export LC_ALL=${LC_ALL:-en_GB.UTF-8}
start_display
copy_prefix "$scratch/prefix"
boot_desktop
mkdir "$WINEPREFIX/drive_c/Meridex"
cp "$program" "$WINEPREFIX/drive_c/Meridex/"
cd "$WINEPREFIX/drive_c/Meridex"
timeout --kill-after=5 270 "${wine[@]}" "C:\\Meridex\\${program##*/}" "$@" </dev/null
