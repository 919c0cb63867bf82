#!/usr/bin/env bash
# Builds what users download: scripts/package.sh [--no-build] [--release RELEASE] [--to FOLDER]
#
#   meridex-RELEASE-x64.zip, meridex-RELEASE-x86.zip               to unpack anywhere and start
#   meridex-RELEASE-x64-setup.exe, meridex-RELEASE-x86-setup.exe   to install, for one user
#
# FOLDER is build/packages unless told, RELEASE the tree's own. The same tree gives the same bytes, wherever and whenever it
# is built. --no-build takes the programs as they were built last.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"

version=$(sed -nE 's/^project\(Meridex VERSION ([0-9.]+).*/\1/p' "$root/CMakeLists.txt")
release=$version$(sed -nE 's/^set\(MERIDEX_RELEASE "\$\{PROJECT_VERSION\}([a-z]*)".*/\1/p' "$root/CMakeLists.txt")
packages=$root/build/packages
build=yes
while [ $# -gt 0 ]; do
  case $1 in
    --no-build) build='' ;;
    --release) release=${2:?} && shift ;;
    --to) packages=$(realpath -m "${2:?}") && shift ;;
    *)
      sed -n '2s/^# //p' "$0" >&2
      exit 2
      ;;
  esac
  shift
done

cd "$root"
need_packages build package
if [ -n "$build" ]; then
  for preset in windows-x64 windows-x86; do
    configure "$preset"
    build "$preset" meridex
  done
fi

# The moment that every file and archive carries: that of the last change of the tree.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 0)}
export SOURCE_DATE_EPOCH TZ=UTC

pack() { # ARCHITECTURE
  local name=meridex-$release-$1
  local contents=$packages/$1/Meridex
  rm -rf "${packages:?}/$1"
  mkdir -p "$contents"
  install -m 755 "build/windows-$1/src/main/meridex.exe" "$contents/"
  cp -r guide packs/Default packs/Seasons "$contents/"
  chmod -R u=rwX,go=rX "$contents"
  find "$packages/$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
  rm -f "$packages/$name.zip"
  (cd "$packages/$1" && find Meridex | LC_ALL=C sort | zip -q -X -9 -@ "../$name.zip")
  makensis -V2 -NOCD "-DRELEASE=$release" "-DMAJOR=${version%%.*}" "-DMINOR=${version#*.}" "-DARCHITECTURE=$1" \
    "-DCONTENTS=$contents" "-DOUTPUT=$packages/$name-setup.exe" packaging/meridex.nsi >/dev/null
  rm -r "${packages:?}/$1"
}

for architecture in x64 x86; do
  pack $architecture
done
(cd "$packages" && sha256sum meridex-"$release"-*)
