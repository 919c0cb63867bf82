#!/usr/bin/env bash
# Runs the unit tests, the fuzz seeds, the scenarios and a short monkey under Valgrind: scripts/valgrind.sh
#
# It sees what the sanitizers of the native build don't: a value that was never set and decides something. Behind the build
# that takes a few minutes. The exit status is 1 if there is a finding or a leak, or if a program fails or prints something
# else than it should; what each had to say lies in build/valgrind/logs/. Left out are the tests that look at the clock.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
cd "$root"
need_packages build valgrind
configure valgrind
build valgrind

# Played in the folder of the logs, so that the monkey leaves its scenario there.
logs=build/valgrind/logs
rm -rf "$logs"
mkdir -p "$logs"
cd "$logs"

under_valgrind() { # NAME COMMAND...: what the command prints goes to the log NAME.out
  local name=$1
  shift
  valgrind --quiet --error-exitcode=99 --leak-check=full --errors-for-leak-kinds=definite,possible \
    --log-file="$name.log" "$@" </dev/null >"$name.out" 2>"$name.err"
}

play_scenarios() { # NAME FILE...
  local name=$1
  shift
  under_valgrind "$name" "../tools/play/meridex-play" "$@" && cat "${@/%.scn/.out}" | cmp - "$name.out" >&2
}

run_one() { # NAME KIND WORDS...
  local name=$1 kind=$2 start=$SECONDS
  shift 2
  if "$kind" "$name" "$@"; then
    echo "$name: nothing in $((SECONDS - start)) s"
  else
    echo "$name: A FINDING, see build/valgrind/logs/$name.*"
    head -n 40 "$name.log" "$name.err"
    return 1
  fi
}
export -f under_valgrind play_scenarios run_one

# One line for each run, the long ones first.
list_runs() {
  echo "monkey under_valgrind ../tests/monkey/monkey 1 1000"
  local program
  for program in ../tests/*/*_test; do
    echo "${program##*/} under_valgrind $program --gtest_brief=1 --gtest_filter=-*_in_time"
  done
  for program in ../fuzz/replay_*; do
    echo "${program##*/} under_valgrind $program $(echo ../../../fuzz/corpus/"${program##*/replay_}"/*)"
  done
  printf '%s\n' ../../../tests/scenarios/*.scn | xargs -n 40 | awk '{ print "scenarios_" NR " play_scenarios " $0 }'
}

status=0
# shellcheck disable=SC2016  # each line is expanded by the shell that runs it
list_runs | tr '\n' '\0' | xargs -0 -n 1 -P "$(nproc)" bash -c 'set -f; run_one $0' || status=1
expected=$(list_runs | wc -l)
ran=$(find . -name '*.log' | wc -l)
echo "$ran of $expected runs"
[ "$ran" -eq "$expected" ] || status=1
exit $status
