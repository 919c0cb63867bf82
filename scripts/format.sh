#!/usr/bin/env bash
# Formats all sources; with --check it changes nothing, tells what isn't formatted and fails. Without clang-format the
# check ends with status 77, which ctest counts as skipped.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
if ! command -v clang-format >/dev/null; then
  echo "clang-format isn't installed" >&2
  exit 77
fi
mapfile -t files < <(find src tests tools bench fuzz -name '*.cpp' -o -name '*.h')
if [ "${1:-}" = --check ]; then
  exec clang-format --dry-run -Werror "${files[@]}"
fi
exec clang-format -i "${files[@]}"
