#!/usr/bin/env bash
# The system's headers, and questions which system it is, stand only where the window system is at home.
set -euo pipefail
headers='windows|windowsx|windef|winbase|wingdi|winuser|winreg|winnls|winternl|commctrl|commdlg|dlgs|shellapi|shlobj|shlwapi'
headers+='|ole2|olectl|oleauto|objbase|ocidl|oleacc|tlhelp32|mmsystem|gdiplus|richedit'
at_home='^(src/win32/|src/main/main_win32[.]cpp|tools/desktop/|tests/win32/|tests/contract/service_world_win32[.]cpp|tests/desktop/'
at_home+='|bench/(floors|floor_window|object_count|[a-z_]+_windows)[.]cpp|bench/stopwatch[.]h)'
status=0
all=$(grep -rniE '#[[:space:]]*include[[:space:]]*[<"]('"$headers"')\.h[>"]|#[[:space:]]*(el)?if.*_WIN(32|64)|__MINGW' \
  --include='*.h' --include='*.cpp' src tools tests bench fuzz) || status=$?
# They do stand where they are at home: a search that finds nothing at all has looked at the wrong place.
if [ $status -ne 0 ]; then
  echo 'the search for the headers has failed' >&2
  exit 1
fi
found=$(awk -v home="$at_home" '$0 !~ home' <<<"$all")
[ -z "$found" ] || {
  printf 'Belongs under src/win32/:\n%s\n' "$found"
  exit 1
}
