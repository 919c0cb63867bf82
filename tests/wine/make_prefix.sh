#!/usr/bin/env bash
# Makes the Wine prefix of which each test takes a copy, if it isn't there.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../../scripts/lib/wine.sh"
make_golden_prefix
