#!/usr/bin/env bash
# Plays the desktop tests with the 32-bit program: scripts/test-32-bit.sh [TEST]...
#
# Debian's 64-bit Wine plays no 32-bit programs, so this makes a folder with a 32-bit Debian and its Wine, once, in the cache
# (some two minutes, 1.1 GB), and starts the programs in there. That needs root and Debian's mirror; where it can't be had the exit
# status is 2 and the last line says what is missing. TEST is a module, class or method of tests/desktop; the main cases if none is given.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"

cant() {
  echo "THE 32-BIT PROGRAM WAS NOT TESTED: $*" >&2
  exit 2
}

main_cases=(test_start test_placement test_styles test_shell test_living test_menus test_editor_keys test_message_boxes
  test_tips test_settings_window test_exchange test_reading test_wallpaper test_package)

[ "$(id -u)" -eq 0 ] || cant "this needs root"
cd "$root"
need_packages build wine office package debian32 || cant "the packages that this needs can't be installed"
unshare -m true 2>/dev/null || cant "this machine lets nobody mount a folder"

cache=${XDG_CACHE_HOME:-${HOME:-/tmp}/.cache}/meridex
debian=$cache/debian-i386
mirror=http://deb.debian.org/debian
if [ ! -e "$debian/meridex-ready" ]; then
  echo "Making a 32-bit Debian in $debian (once)"
  rm -rf "$debian"
  mkdir -p "$debian"
  quietly debootstrap --arch=i386 --variant=minbase --include=wine32,locales bookworm "$debian" "$mirror" ||
    cant "a 32-bit Debian can't be had from $mirror"
  for name in "${tried_locales[@]}"; do
    chroot "$debian" localedef -i "$name" -f UTF-8 "$name.UTF-8" || cant "$name can't be made in $debian"
  done
  touch "$debian/meridex-ready"
fi

configure windows-x64
configure windows-x86
build windows-x64 meridex  # the packages hold both programs
build windows-x86 meridex tests/desktop/all tools/desktop/all

# Two commands that the tests take for Wine's own: they start it in that Debian, where the folders of this one lie too.
wine32=$root/build/wine32
clock=/usr/lib/meridex-clock.so  # in there: LD_PRELOAD splits at blanks, which the tree's path may have
mkdir -p "$wine32"
put_command() { # NAME PROGRAM
  cat >"$wine32/$1" <<END
#!/bin/sh
clock=\${LD_PRELOAD:+$clock}
unset LD_PRELOAD
exec chroot "$debian" /usr/bin/env \${clock:+LD_PRELOAD="\$clock"} WINEARCH=win32 "$2" "\$@"
END
  chmod +x "$wine32/$1"
}
gcc -m32 -O2 -fPIC -shared -nostdlib -o "$debian$clock" tools/clock/clock.c ||
  cant "the 32-bit clock can't be built"
put_command wine /usr/lib/wine/wine
put_command wineserver /usr/lib/wine/wineserver32

export MERIDEX_ARCHITECTURE=x86 WINE64=$wine32/wine WINESERVER=$wine32/wineserver
export XDG_CACHE_HOME=$cache/32-bit  # its prefix is another one
mkdir -p "$XDG_CACHE_HOME"
[ $# -gt 0 ] || set -- "${main_cases[@]}"
exec unshare -m bash -c '
  set -e
  debian=$1 root=$2
  shift 2
  for folder in /proc /dev /tmp "$XDG_CACHE_HOME" "$root"; do
    mkdir -p "$debian$folder"
    mount --bind "$folder" "$debian$folder"
  done
  cd "$root/tests/desktop"
  exec python3 -B -m unittest "$@" </dev/null' bash "$debian" "$root" "$@"
