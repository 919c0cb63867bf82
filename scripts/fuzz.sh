#!/usr/bin/env bash
# Builds the fuzz targets and runs one after the other: scripts/fuzz.sh [SECONDS]
#
# Each runs for SECONDS (300 unless told) over its seeds in fuzz/corpus/. New inputs are kept for the next time in
# build/fuzz/found/, and an input that ends a target in build/fuzz/findings/. The exit status is 1 if there is one,
# or if a target has no seeds.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"

seconds=${1:-300}
if ! [[ $seconds =~ ^[0-9]*[1-9][0-9]*$ ]]; then # 0 is without end to the targets
  echo "scripts/fuzz.sh [SECONDS]" >&2
  exit 2
fi

cd "$root"
need_packages build lint
configure fuzz
build fuzz fuzz_targets

mapfile -t targets < <(sed -n 's/^meridex_fuzz_target(\([a-z_]*\).*/\1/p' fuzz/CMakeLists.txt)
if [ ${#targets[@]} -eq 0 ]; then
  echo "fuzz/CMakeLists.txt names no target" >&2
  exit 1
fi
status=0
for name in "${targets[@]}"; do
  corpus=fuzz/corpus/$name
  if [ -z "$(find "$corpus" -type f -print -quit 2>/dev/null)" ] || [ ! -f "fuzz/dictionaries/$name.txt" ]; then
    echo "$name: no seeds or no dictionary"
    status=1
    continue
  fi
  found=build/fuzz/found/$name findings=build/fuzz/findings/$name log=build/fuzz/$name.log
  mkdir -p "$found" "$findings"
  echo "$name: $seconds s"
  if ! nice "build/fuzz/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=25 -print_final_stats=1 \
    -dict="fuzz/dictionaries/$name.txt" -artifact_prefix="$findings/" "$found" "$corpus" </dev/null >"$log" 2>&1; then
    status=1
    grep -aE '^(Not so:|==|SUMMARY|#[0-9]+ )' "$log" | tail -n 20 || true
    echo "$name: a finding, see $findings and $log"
  fi
  sed -nE 's/^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb): */  \1 /p' "$log"
done
exit $status
