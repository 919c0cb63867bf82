#!/usr/bin/env bash
# Builds and tests everything: scripts/test.sh. Unit tests and scenarios alone: scripts/test.sh --quick.
# The exit status is ctest's; what else ctest takes can stand behind, such as -R desktop.
# With CI=true a desktop test that fails is run once more, and the last lines tell which; failing twice fails the run.
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

need_packages build wine office lint
configure native -DMERIDEX_WINE_TESTS=ON
configure windows-x64 -DMERIDEX_WINE_TESTS=ON
configure windows-x86
build native
build windows-x64
build windows-x86 meridex  # its tests can't run here: Debian's 64-bit Wine plays no 32-bit programs

run_ctest() {
  ctest --test-dir build/native --output-on-failure -j "$(nproc)" "$@" </dev/null
}

if [ "${CI:-}" != true ]; then
  run_ctest --no-tests=error "$@"
  exit
fi

# In two parts, because what is repeated is the whole of a ctest run: the other tests have one try.
status=0
if run_ctest -N "$@" | grep -q '^Total Tests: 0$'; then
  echo 'No tests were found.' >&2
  exit 1
fi
none=error
[ $# -eq 0 ] || none=ignore  # what is asked for may lie in one part alone
run_ctest -LE '^desktop$' --no-tests="$none" "$@" || status=$?
log=$(mktemp)
trap 'rm -f "$log"' EXIT
run_ctest -L '^desktop$' --no-tests="$none" --repeat until-pass:2 "$@" | tee "$log" || status=$?
repeated=$(sed -nE 's/^.*Test +#[0-9]+: ([^ ]+) \.*\*\*\*.*$/\1/p' "$log" | sort | uniq -c)
if [ -n "$repeated" ]; then
  echo 'Desktop tests that failed and were run once more (failures, name):'
  echo "$repeated"
fi
[ $status -eq 0 ] || echo 'At least one test has failed for good: see the summaries above.'
exit $status
