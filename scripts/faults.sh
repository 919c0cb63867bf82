#!/usr/bin/env bash
# Plants single faults at random in the portable code, one at a time, and tells which the tests notice:
# scripts/faults.sh [COUNT [SEED]], 100 of a new seed unless told.
#
# A fault is an operator or a constant changed, or a call dropped, also the one behind a condition on its line; one that the
# compiler refuses, or that changes nothing of what is compiled, doesn't count. Played are the unit tests, the scenarios and a
# short monkey, in copies of the tree in build/. The exit status is 1 if more than 5% survive, if fewer than COUNT could be
# tried, if the compiler refuses more than it takes, or if a copy doesn't build or pass without a fault.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
cd "$root"
need_packages build
exec python3 -B tools/faults/run.py "$@" </dev/null
