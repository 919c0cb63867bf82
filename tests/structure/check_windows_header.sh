#!/usr/bin/env bash
# The system's headers, and questions which system it is, stand only where the window system is at home.
set -euo pipefail
found=$(grep -rnE '#[[:space:]]*include[[:space:]]*<(windows|windowsx|commctrl|commdlg|shellapi|shlobj|ole2|olectl|oleauto|objbase)\.h>|#[[:space:]]*(el)?if.*_WIN(32|64)|__MINGW' \
  --include='*.h' --include='*.cpp' src tools tests |
  grep -vE '^(src/win32/|src/main/main_win32\.cpp|tools/desktop/|tests/win32/|tests/contract/service_world_win32\.cpp|tests/desktop/)' || true)
[ -z "$found" ] || {
  printf 'Belongs under src/win32/:\n%s\n' "$found"
  exit 1
}
