# shellcheck shell=bash
# Sourced: the Debian packages that building, testing and measuring need, installed when something is missing.
#
#   need_packages build wine      # groups: build, wine, office, lint, package, debian32, coverage, valgrind, bench
#
# Where everything is there, nothing is installed and the network isn't touched.

# shellcheck disable=SC2034  # read by name
packages_build=(cmake ninja-build g++ python3 googletest libgtest-dev binutils-mingw-w64-x86-64 binutils-mingw-w64-i686
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-win32 mingw-w64-x86-64-dev mingw-w64-i686-dev
  # the native benchmarks, which are part of the native build
  libbenchmark-dev libx11-dev libxdamage-dev libxtst-dev)
# shellcheck disable=SC2034
packages_wine=(wine64 wine fonts-wine fonts-liberation xvfb xdotool imagemagick x11-utils x11-xkb-utils libfaketime locales python3
  binutils util-linux procps)
# A spreadsheet without windows, for the tests of what goes out and comes in.
# shellcheck disable=SC2034
packages_office=(libreoffice-calc-nogui)
# shellcheck disable=SC2034
packages_lint=(clang-format clang-tidy clang libclang-rt-14-dev)
# shellcheck disable=SC2034
packages_package=(nsis zip git)
# shellcheck disable=SC2034
packages_debian32=(debootstrap)
# shellcheck disable=SC2034
packages_coverage=(gcovr)
# shellcheck disable=SC2034
packages_valgrind=(valgrind)
# shellcheck disable=SC2034
packages_bench=(libjpeg-turbo-progs
  # the calendars that the month printed stands beside
  gcal remind calcurse when)

# The languages in which the program is tried under Wine.
tried_locales=(en_GB en_US de_DE)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "Not root, and there is no sudo to run: $*" >&2
    return 1
  fi
}

# Prints those of the given packages that aren't installed.
missing_packages() {
  local package
  local -A installed=()
  while read -r package; do
    installed[$package]=1
  done < <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p')
  for package in "$@"; do
    [ -n "${installed[$package]:-}" ] || echo "$package"
  done
}

install_packages() {
  local try log
  log=$(mktemp)
  echo "Installing: $*"
  for try in 1 2 3; do
    if as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq update </dev/null >"$log" 2>&1 &&
      as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "$@" \
        </dev/null >>"$log" 2>&1; then
      rm -f "$log"
      return 0
    fi
    [ "$try" -eq 3 ] || sleep $((try * 5))
  done
  cat "$log" >&2
  rm -f "$log"
  echo "Installing failed three times." >&2
  return 1
}

need_locales() {
  local name have
  have=$(locale -a)
  for name in "${tried_locales[@]}"; do
    grep -qx "$name\.utf8" <<<"$have" || as_root localedef -i "$name" -f UTF-8 "$name.UTF-8" || return
  done
}

need_packages() {
  local group list missing
  local -a wanted=()
  for group in "$@"; do
    list="packages_${group}[@]"
    wanted+=("${!list}")
  done
  mapfile -t missing < <(missing_packages "${wanted[@]}")
  [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}" || return
  case " $* " in
    *" wine "*) need_locales ;;
  esac
}
