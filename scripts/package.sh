#!/usr/bin/env bash
# Builds what users download: scripts/package.sh [--no-build] [--release RELEASE] [--to FOLDER]
#
#   meridex-RELEASE-x64.zip, meridex-RELEASE-x86.zip               to unpack anywhere and start
#   meridex-RELEASE-x64-setup.exe, meridex-RELEASE-x86-setup.exe   to install, for one user
#   SHA256SUMS                                                     of these four; printed too
#
# FOLDER is build/packages unless told, RELEASE the tree's own. What git knows of guide and packs is packed, nothing else that
# lies there. The same programs give the same bytes, wherever and whenever they are packed, with the same Debian's tools.
# --no-build takes the programs as they were built last.
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

git_here() { # for root the tree may be another user's
  git -c safe.directory='*' "$@"
}

# The moment that every file and archive carries: that of the last change of the tree.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git_here log -1 --format=%ct)} || {
  echo "No packages without the tree's history: it tells their date and what belongs in them." >&2
  exit 1
}
export SOURCE_DATE_EPOCH TZ=UTC

mkdir -p "$packages"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

copy_known() { # NAME... TO: what git knows of them in the present folder
  git_here ls-files -z "${@:1:$#-1}" | xargs -0 cp --parents -t "${!#}"
}

# The installer's lines that take the guide and the packs away again, with the bitmaps that the calendar makes of pictures.
print_removal() { # CONTENTS
  (cd "$1" && find ./*/ -type f | LC_ALL=C sort) |
    sed -n 's|^\./||; s|/|\\|g; s|.*|Delete "$INSTDIR\\&"|p; s|\.jpg"$|.bmp"|p'
}

minor=${version#*.}

pack() { # ARCHITECTURE
  local name=meridex-$release-$1
  local contents=$work/$1/Meridex
  mkdir -p "$contents"
  install -m 755 "build/windows-$1/src/main/meridex.exe" "$contents/"
  copy_known guide "$contents"
  (cd packs && copy_known Default Seasons "$contents")
  chmod -R u=rwX,go=rX "$contents"
  print_removal "$contents" >"$work/removal.nsh"
  find "$work/$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
  rm -f "$packages/$name.zip"
  (cd "$work/$1" && find Meridex | LC_ALL=C sort | zip -q -X -9 -@ "$packages/$name.zip")
  makensis -V2 -NOCD "-DRELEASE=$release" "-DMAJOR=${version%%.*}" "-DMINOR=${minor%%.*}" "-DARCHITECTURE=$1" \
    "-DCONTENTS=$contents" "-DREMOVAL=$work/removal.nsh" "-DOUTPUT=$packages/$name-setup.exe" packaging/meridex.nsi >/dev/null
}

for architecture in x64 x86; do
  pack $architecture
done
(cd "$packages" && find meridex-"$release"-* | LC_ALL=C sort | xargs sha256sum | tee SHA256SUMS)
