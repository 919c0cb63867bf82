#!/usr/bin/env bash
# How much of the portable code the tests that run natively run through: scripts/coverage.sh
#
# Those are the unit tests, which the fuzz seeds and three runs of the monkey are among, and the scenarios. Prints lines and
# branches of each file that isn't whole, and of all together; branches that only exceptions take, and those of lines that hold no
# code of ours, don't count. The pages in build/coverage/pages show each line. The exit status is 1 below 99% of the
# lines or 94% of the branches, or if a test fails; the figures are printed then too.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
cd "$root"
need_packages build coverage
configure coverage
build coverage
find build/coverage -name '*.gcda' -delete
status=0
quietly ctest --test-dir build/coverage -L 'unit|scenarios' -j "$(nproc)" --no-tests=error --output-on-failure || status=1
mkdir -p build/coverage/pages
# The plain search for a byte is compiled once more, as a function of the same name at another line: gcovr knows only one.
gcovr --root . --object-directory build/coverage --exclude-directories '.*/find_byte_plain_test\.dir' \
  --filter 'src/' --exclude 'src/win32/' --exclude 'src/memory/' --exclude 'src/main/main_win32' \
  --exclude-throw-branches --exclude-unreachable-branches -j "$(nproc)" --html-details build/coverage/pages/index.html \
  --json-summary build/coverage/summary.json >/dev/null
python3 - build/coverage/summary.json <<'END' || status=1
import json
import sys
with open(sys.argv[1], encoding="utf-8") as file:
    summary = json.load(file)
for one in summary["files"]:
    if one["line_covered"] < one["line_total"] or one["branch_covered"] < one["branch_total"]:
        print(f"{one['filename']:55} lines {one['line_covered']:4} of {one['line_total']:4}, "
              f"branches {one['branch_covered']:4} of {one['branch_total']:4}")
lines = 100 * summary["line_covered"] / summary["line_total"]
branches = 100 * summary["branch_covered"] / summary["branch_total"]
print(f"lines {lines:.1f}% of {summary['line_total']}, branches {branches:.1f}% of {summary['branch_total']}")
sys.exit(lines < 99 or branches < 94)
END
[ $status -eq 0 ] || echo "A test failed, or a goal isn't reached" >&2
exit $status
