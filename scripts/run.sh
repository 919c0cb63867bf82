#!/usr/bin/env bash
# Builds the Windows program and shows it under Wine, on a calendar of its own; see --help.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/lib/packages.sh"
. "$root/scripts/lib/build.sh"
. "$root/scripts/lib/wine.sh"
. "$root/scripts/lib/sample.sh"

usage() {
  cat <<'END'
Usage: scripts/run.sh [OPTION]...

Builds the program for Windows and starts it under Wine, on a sample calendar for the month.
With a display it runs there until it is closed. Without one, or with --screenshot, it runs on a
virtual one until its window stands, and the screen is saved as a picture.

  --data FILE                   show this calendar.dat (a copy of it: FILE itself isn't changed)
  --now 'YYYY-MM-DD HH:MM:SS'   the moment that the program's clock starts from (the time may be left out)
  --screenshot FILE             where the picture goes (PNG); build/meridex.png if this isn't given
  --setting 'SECTION KEY VALUE' a stored setting, such as 'Settings Start Day 2' or 'Colours Today 255';
                                a VALUE with blanks stands in double quotes; may be repeated
  --desktop                     with a stand-in for the desktop's windows behind it
  --no-build                    take the program as it was built last
  --help                        this text
END
}

fail() {
  echo "run.sh: $*" >&2
  exit 2
}

data='' now='' picture='' desktop='' build=yes
settings=()
while [ $# -gt 0 ]; do
  case $1 in
    --desktop) desktop=yes ;;
    --no-build) build='' ;;
    --help | -h)
      usage
      exit 0
      ;;
    --data | --now | --screenshot | --setting)
      [ $# -ge 2 ] || fail "$1 needs a value"
      case $1 in
        --data) data=$2 ;;
        --now) now=$2 ;;
        --screenshot) picture=$2 ;;
        --setting) settings+=("$2") ;;
      esac
      shift
      ;;
    *) fail "unknown option $1 (--help tells them)" ;;
  esac
  shift
done
[ -z "$data" ] || [ -r "$data" ] || fail "can't read $data"
if [ -n "$now" ]; then
  now=$(date -u -d "$now UTC" '+%Y-%m-%d %H:%M:%S' 2>/dev/null) || fail "--now takes 'YYYY-MM-DD HH:MM:SS'"
fi
virtual=''
if [ -n "$picture" ] || [ -z "${DISPLAY:-}" ]; then
  virtual=yes
  picture=$(realpath -m "${picture:-$root/build/meridex.png}")
  mkdir -p "$(dirname "$picture")"
fi
[ -z "$data" ] || data=$(realpath "$data")

cd "$root"
need_packages build wine
output=build/windows-x64
if [ -n "$build" ]; then
  configure windows-x64
  build windows-x64 meridex ${desktop:+desktop_stand_in}
fi
program=$output/src/main/meridex.exe
starter=$output/tools/desktop/meridex-desktop-start.exe
[ -f "$program" ] || fail "the program isn't built"
[ -z "$desktop" ] || [ -f "$starter" ] || fail "this tree has no stand-in for the desktop yet"

make_golden_prefix
scratch=$(mktemp -d)
trap 'end_wine; rm -rf "$scratch"' EXIT
trap 'exit 130' INT TERM

# The program's own folder: the executable, the events and the wallpaper packs.
fill_folder() {
  local folder=$WINEPREFIX/drive_c/Meridex pack
  mkdir -p "$folder"
  cp "$program" "$folder/"
  cp -r "$root/guide" "$folder/"
  [ -z "$desktop" ] || cp "$output"/tools/desktop/*.exe "$output"/tools/desktop/*.dll "$folder/"
  for pack in packs/*/; do
    [ ! -f "$pack/settings.ini" ] || cp -r "${pack%/}" "$folder/"
  done
  if [ -n "$data" ]; then
    cp "$data" "$folder/calendar.dat"
  else
    # shellcheck disable=SC2046  # three words
    sample_calendar $(date -u -d "${now:-$(date '+%F %T')} UTC" '+%Y %m %d') >"$folder/calendar.dat"
  fi
}

# 'SECTION KEY VALUE': the first word, the last one, and the key between them, which may hold blanks.
put_settings() {
  local setting count
  local -a words
  for setting in ${settings[@]+"${settings[@]}"}; do
    mapfile -t words < <(xargs -n 1 printf '%s\n' <<<"$setting")
    count=${#words[@]}
    [ "$count" -ge 3 ] || fail "--setting takes 'SECTION KEY VALUE', not '$setting'"
    store_setting "${words[0]}" "${words[*]:1:count-2}" "${words[count - 1]}"
  done
}

start_program() {
  local -a command=("${wine[@]}" 'C:\Meridex\meridex.exe')
  [ -z "$desktop" ] || command=("${wine[@]}" 'C:\Meridex\meridex-desktop-start.exe' 'C:\Meridex\meridex.exe')
  if [ -n "$now" ]; then
    echo "@$now" >"$scratch/clock"
    on_clock "$scratch/clock" "${command[@]}"
  else
    "${command[@]}"
  fi
}

windows_of_program() {
  timeout 10 xdotool search --onlyvisible --class '^meridex\.exe$' 2>/dev/null
}

# Message boxes have a title bar, the calendar and the desktop behind it have none. Prints box, calendar, or nothing for a
# window that is just coming or going.
kind_of() { # WINDOW
  local decorations
  decorations=$(xprop -id "$1" _MOTIF_WM_HINTS 2>/dev/null | sed -n 's/.*= 0x[0-9a-f]*, 0x[0-9a-f]*, \(0x[0-9a-f]*\),.*/\1/p')
  [ -n "$decorations" ] || return 0
  if [ $((decorations)) -ne 0 ]; then
    echo box
  elif [ "$(xdotool getwindowname "$1" 2>/dev/null)" != Meridex ]; then
    echo calendar
  fi
}

screen_sum() {
  import -window root -depth 8 rgb:- | md5sum
}

# Waits for the calendar; message boxes on the way, such as an alert, are told of and closed.
wait_for_calendar() { # PROCESS
  local deadline=$((SECONDS + 60)) window box calendar
  while kill -0 "$1" 2>/dev/null; do
    [ $SECONDS -lt $deadline ] || return 1
    box='' calendar=''
    for window in $(windows_of_program); do
      case $(kind_of "$window") in
        box) box=$window ;;
        calendar) calendar=$window ;;
      esac
    done
    if [ -n "$box" ]; then
      give_keys
      echo "Closing a message titled $(xdotool getwindowname "$box" 2>/dev/null || true)"
      xdotool key Return
      wait_until 1 gone "$box" || true  # a box that has just come up can miss its key
    elif [ -n "$calendar" ]; then
      return 0
    fi
    sleep 0.05
  done
  return 1
}

gone() { # WINDOW
  ! windows_of_program | grep -qx "$1"
}

# Waits until what stands on the screen is painted and stays, with a desktop also until the splash is gone.
wait_for_rest() { # SUM OF THE EMPTY SCREEN
  local before='' now same=0 enough=${desktop:+12} tries=60
  while ((same < ${enough:-1} && tries-- > 0)); do
    now=$(screen_sum)
    if [ "$now" != "$1" ] && [ "$now" = "$before" ]; then
      ((same += 1))
    else
      same=0
    fi
    before=$now
    sleep 0.2
  done
}

# Behind a desktop of its own the program gets its keys only through this.
give_keys() {
  [ -z "$desktop" ] || xdotool windowfocus "$(xdotool search --onlyvisible --name 'Wine desktop' | head -n 1)" || true
}

shoot() {
  local empty process status=0
  xdotool mousemove 1 1
  empty=$(screen_sum)
  start_program &
  process=$!
  if ! wait_for_calendar "$process"; then
    end_prefix
    wait "$process" || status=$?
    import -window root "$picture"
    echo "run.sh: the calendar didn't come up (exit status $status)" >&2
    return 1
  fi
  wait_for_rest "$empty"
  import -window root "$picture"
  echo "The screen is in $picture"
  end_prefix
  wait "$process" || true
}

if [ -n "$virtual" ]; then
  export LC_ALL=${LC_ALL:-en_GB.UTF-8}
  start_display
fi
copy_prefix "$scratch/prefix"
put_settings
fill_folder
if [ -n "$virtual" ]; then
  boot_desktop
  shoot
else
  boot_prefix
  start_program
fi
