#include "report.h"

#include <cstdarg>
#include <cstdio>

namespace desktop {

void Report(const char* format, ...) {
  char path[MAX_PATH];
  const DWORD length = GetEnvironmentVariableA("MERIDEX_DESKTOP_REPORT", path, sizeof path);
  if (length == 0 || length >= sizeof path) return;
  char line[512];
  va_list arguments;
  va_start(arguments, format);
  const int written = vsnprintf(line, sizeof line - 2, format, arguments);
  va_end(arguments);
  if (written < 0) return;
  lstrcatA(line, "\r\n");
  const HANDLE file = CreateFileA(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD done = 0;
  WriteFile(file, line, static_cast<DWORD>(lstrlenA(line)), &done, nullptr);
  CloseHandle(file);
}

}  // namespace desktop
