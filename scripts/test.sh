#!/usr/bin/env bash
# Builds and tests everything: scripts/test.sh. Unit tests and scenarios alone: scripts/test.sh --quick.
# The exit status is ctest's; what else ctest takes can stand behind, such as -R desktop.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"

quick=''
if [ "${1:-}" = --quick ]; then
  quick=yes
  shift
fi

cd "$root"
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1} UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}
if [ -n "$quick" ]; then
  need_packages build
  configure native -DMERIDEX_WINE_TESTS=ON
  build native
  exec ctest --test-dir build/native --output-on-failure --no-tests=error -j "$(nproc)" -L 'unit|scenarios' "$@" </dev/null
fi

need_packages build wine lint
configure native -DMERIDEX_WINE_TESTS=ON
configure windows-x64 -DMERIDEX_WINE_TESTS=ON
configure windows-x86
build native
build windows-x64
build windows-x86 meridex  # its tests can't run here: Debian's 64-bit Wine plays no 32-bit programs
exec ctest --test-dir build/native --output-on-failure --no-tests=error -j "$(nproc)" "$@" </dev/null
