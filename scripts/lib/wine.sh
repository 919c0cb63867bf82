# shellcheck shell=bash
# Sourced: Wine for one run of the program, apart from the user's own Wine.
#
#   make_golden_prefix                once for all runs, in the cache folder; others wait for the one who makes it
#   start_display                     a virtual display of its own; sets DISPLAY
#   copy_prefix FOLDER                a prefix for one run: own registry, shared system folder; sets WINEPREFIX
#   store_setting SECTION KEY VALUE   a stored setting of the program in that prefix, before it is booted
#   boot_prefix                       starts its server, on the real clock
#   boot_desktop                      the same on a display of start_display's, until Wine's desktop is painted
#   on_clock FILE COMMAND...          runs a command on the clock that FILE tells
#   end_prefix                        ends every program of the prefix
#
# What a caller started ends with it: call `trap end_wine EXIT`.

WINE64=${WINE64:-/usr/lib/wine/wine64}
WINESERVER=${WINESERVER:-/usr/lib/wine/wineserver64}
# Debian's Wine is linked at a fixed place just below 0x7ffe0000 and comes without a preloader. Its heap begins anywhere in
# the gigabyte behind that place, and now and then lies where Windows programs need a page of the system's: such a program
# ends before its first instruction. So memory isn't laid out at random; where a container forbids that, it stays as it is.
wine=("$WINE64")
if setarch -R true 2>/dev/null; then
  wine=(setarch -R "$WINE64")
fi
faketime_library=/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1
screen_size=1280x1024

export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES='mscoree,mshtml='

cache_folder=${XDG_CACHE_HOME:-${HOME:-/tmp}/.cache}/meridex
# The number counts the recipes below: trees of different ages can share the cache.
golden_prefix=$cache_folder/wine-prefix-2
display_process=
idle_input=
idle_process=

# Polls: tries the command every 50 ms until it succeeds; fails after SECONDS.
#   wait_until SECONDS COMMAND...
wait_until() {
  local deadline=$((SECONDS + $1))
  shift
  while ! "$@" >/dev/null 2>&1; do
    [ $SECONDS -le $deadline ] || return 1
    sleep 0.05
  done
}

start_display() { # the server looks for a free number itself and tells it in one line
  local file number
  file=$(mktemp)
  Xvfb -displayfd 7 -screen 0 "${screen_size}x24" -nolisten tcp -noreset 7>"$file" >/dev/null 2>&1 &
  display_process=$!
  wait_until 20 display_told "$file" || true
  number=$(cat "$file")
  rm -f "$file"
  if [ -z "$number" ] || ! kill -0 "$display_process" 2>/dev/null; then
    echo "No virtual display came up." >&2
    return 1
  fi
  export DISPLAY=:$number
}

display_told() { # FILE: there is a whole line, or nobody who could still write one
  [ "$(wc -l <"$1")" -gt 0 ] || ! kill -0 "$display_process"
}

end_display() {
  [ -n "$display_process" ] || return 0
  kill "$display_process" 2>/dev/null || true
  wait "$display_process" 2>/dev/null || true
  display_process=
}

add_value() { # KEY NAME KIND DATA
  "${wine[@]}" reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1 </dev/null
}

fill_golden_prefix() {
  export WINEPREFIX=$golden_prefix
  timeout 180 "${wine[@]}" wineboot -i >/dev/null 2>&1 </dev/null
  timeout 60 "$WINESERVER" -w
  # Debian's Wine looks for its own fonts in a folder where they aren't.
  cp /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$WINEPREFIX/drive_c/windows/Fonts/"
  add_value 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
  # A desktop of Wine's own: without a window manager the keys reach message boxes only there.
  add_value 'HKCU\Software\Wine\Explorer' Desktop REG_SZ meridex
  add_value 'HKCU\Software\Wine\Explorer\Desktops' meridex REG_SZ "$screen_size"
  add_value 'HKCU\Control Panel\Colors' Background REG_SZ '58 110 165'
  add_value 'HKCU\Control Panel\Colors' WindowFrame REG_SZ '0 0 0'
  "$WINESERVER" -k || true
  timeout 60 "$WINESERVER" -w
}

make_golden_prefix() {
  local stamp
  stamp=$("$WINE64" --version)
  mkdir -p "$cache_folder"
  (
    flock 9
    [ "$(cat "$golden_prefix/meridex-stamp" 2>/dev/null)" != "$stamp" ] || exit 0
    echo "Making a Wine prefix in $golden_prefix (once)" >&2
    (
      trap end_display EXIT
      rm -rf "$golden_prefix"
      mkdir -p "$golden_prefix"
      start_display
      fill_golden_prefix
    ) 9>&-
    echo "$stamp" >"$golden_prefix/meridex-stamp"
  ) 9>"$cache_folder/wine-prefix.lock"
}

copy_prefix() { # FOLDER
  mkdir -p "$1/drive_c"
  cp -a "$golden_prefix"/*.reg "$golden_prefix/.update-timestamp" "$golden_prefix/dosdevices" "$1/"
  cp -a "$golden_prefix/drive_c/users" "$1/drive_c/"
  ln -s "$golden_prefix/drive_c/windows" "$1/drive_c/windows"
  export WINEPREFIX=$1
}

registry_text() { # as it stands between the quotes of a registry file
  local text=${1//\\/\\\\}
  printf '%s' "${text//\"/\\\"}"
}

store_setting() { # SECTION KEY VALUE
  printf '\n[Software\\\\Meridex\\\\%s] 1\n"%s"="%s"\n' "$(registry_text "$1")" "$(registry_text "$2")" \
    "$(registry_text "$3")" >>"$WINEPREFIX/user.reg"
}

# Wine's desktop goes a second after the last program on it: an idle command line stays there until the prefix ends.
boot_prefix() {
  "$WINESERVER" -p60  # it goes by itself if a run is cut off
  exec {idle_input}> >(exec "${wine[@]}" cmd >/dev/null 2>&1)
  idle_process=$!
  wait_for_desktop 60 xdotool search --onlyvisible --name 'Wine desktop'
}

wait_for_desktop() { # SECONDS COMMAND...: until it succeeds, or the idle command line has ended without it
  if ! wait_until "$1" idle_ended_or "${@:2}" || ! kill -0 "$idle_process" 2>/dev/null; then
    echo "Wine's desktop didn't come up." >&2
    return 1
  fi
}

idle_ended_or() {
  ! kill -0 "$idle_process" || "$@"
}

desktop_stands() {
  [ "$(import -window root -crop 1x1+1+1 -depth 8 rgb:- | od -An -tu1)" = "  58 110 165" ]
}

boot_desktop() {
  boot_prefix || return
  wait_for_desktop 30 desktop_stands
}

# FILE holds '@YYYY-MM-DD HH:MM:SS' for a clock that runs on from there. Timers and the wait for them stay real.
on_clock() { # FILE COMMAND...
  local file=$1
  shift
  env TZ=UTC LD_PRELOAD="$faketime_library" FAKETIME_TIMESTAMP_FILE="$file" FAKETIME_NO_CACHE=1 \
    FAKETIME_DONT_FAKE_MONOTONIC=1 NO_FAKE_STAT=1 "$@"
}

end_prefix() {
  local folder
  [ -n "${WINEPREFIX:-}" ] && [ "$WINEPREFIX" != "$golden_prefix" ] || return 0
  [ -z "$idle_input" ] || exec {idle_input}>&-
  idle_input=
  timeout 30 "$WINESERVER" -k 2>/dev/null || true
  timeout 20 "$WINESERVER" -w 2>/dev/null || true
  end_stragglers
  # Debian's server notes here which folder for its socket it has made.
  folder=$(cat "$WINEPREFIX/wineserver" 2>/dev/null || true)
  case $folder in
    */*) ;;
    wine-?*) rm -rf "/tmp/$folder" ;;
  esac
}

# A program that is just starting as the server goes waits for its first answer for ever: the server doesn't know it yet
# and doesn't end it.
end_stragglers() {
  local process
  for process in $(grep -lszxaF "WINEPREFIX=$WINEPREFIX" /proc/[0-9]*/environ | cut -d / -f 3); do
    if [ "$process" -ne $$ ] && grep -qsaE 'exe|wine' "/proc/$process/cmdline"; then
      kill -KILL "$process" 2>/dev/null || true
    fi
  done
}

end_wine() {
  end_prefix
  end_display
}
