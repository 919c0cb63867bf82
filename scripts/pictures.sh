#!/usr/bin/env bash
# Takes the pictures of the guide and the README from the running program, anew: scripts/pictures.sh [NAME]...
# The names: calendar, styles, editor, balloon, menu, settings, desktop; all of them unless told. Commit what it wrote.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
cd "$root"
need_packages build wine
configure windows-x64
build windows-x64 meridex desktop_probe desktop_stand_in
exec python3 -B tools/pictures/take_pictures.py "$@" </dev/null
