#!/usr/bin/env bash
# Builds and measures: scripts/bench.sh [--quick] [--markdown FILE] [--readme] [GROUP]... Prints each figure beside its
# floor and its goal; what is measured and how stands in docs/performance.md. The exit status is 1 if a goal isn't
# reached. The figures are worth something on a machine that does nothing else.
#
# --quick measures fewer rounds and a shorter idling; --markdown writes the table to a file too, --readme to its place in
# README.md; --help names the groups.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"

cd "$root"
need_packages build wine bench
configure native-release
configure windows-x64
build native-release bench_month_change bench_tick bench_overview bench_exchange bench_month_print bench_first_map bench_click_time
build windows-x64 meridex bench_month_change bench_object_count bench_jpeg floor_window desktop_probe
cd "$OLDPWD"  # where a file that is named lies
exec python3 -B "$root/bench/run.py" "$@" </dev/null
