#!/usr/bin/env bash
# clang-tidy over the native build's sources and benchmarks, or over those given: scripts/lint.sh [FILE]...
# What is compiled for Windows alone, such as src/win32/, isn't among them: both compilers' warnings look at that.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
cd "$root"
need_packages build lint
# The compiler that lints can't read the other's precompiled headers.
quietly cmake --preset native -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
if [ $# -eq 0 ]; then
  mapfile -t files < <(sed -n 's/^ *"file": "\(.*\)".*/\1/p' build/lint/compile_commands.json |
    root=$root/ awk 'index($0, ENVIRON["root"]) == 1' | sort -u)
  set -- "${files[@]}"
fi
printf '%s\0' "$@" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/lint --quiet --extra-arg=-Wno-unknown-warning-option --warnings-as-errors='*'
