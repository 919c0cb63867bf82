#!/usr/bin/env bash
# Makes the Wine prefix of which each test takes a copy, if it isn't there.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$root/scripts/lib/wine.sh"
make_golden_prefix
