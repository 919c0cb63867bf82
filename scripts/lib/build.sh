# shellcheck shell=bash
# Sourced: configuring and building the presets, without a word unless something goes wrong. The caller stands at the root
# of the tree.

quietly() { # runs the command; shows its output if it fails
  local log
  log=$(mktemp)
  if ! "$@" </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}

configure() { # PRESET [OPTION]...
  local preset=$1
  shift
  quietly cmake --preset "$preset" "$@"
}

build() { # PRESET [TARGET]...
  local preset=$1 start=$SECONDS
  shift
  cmake --build --preset "$preset" -j "$(nproc)" ${1:+--target "$@"} </dev/null
  echo "Built $preset in $((SECONDS - start)) s"
}
