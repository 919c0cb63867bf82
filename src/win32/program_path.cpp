#include "win32/program_path.h"

#include "win32/windows_api.h"

namespace win32 {

namespace {

bool Exists(const std::string& path) { return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

/// Empty where the disk keeps no short names, or the system none but such as its code page has.
std::string Short_Form() {
  const HMODULE kernel = GetModuleHandleA("kernel32.dll");
  const auto path_of = Find_Function<DWORD WINAPI(HMODULE, wchar_t*, DWORD)>(kernel, "GetModuleFileNameW");
  const auto shorten = Find_Function<DWORD WINAPI(const wchar_t*, wchar_t*, DWORD)>(kernel, "GetShortPathNameW");
  wchar_t path[MAX_PATH + 1] = {}, short_path[MAX_PATH + 1] = {};
  if (path_of == nullptr || shorten == nullptr || path_of(nullptr, path, MAX_PATH) == 0) return {};
  const DWORD length = shorten(path, short_path, MAX_PATH);
  char bytes[2 * MAX_PATH];
  const int size = length > MAX_PATH ? 0
                                     : WideCharToMultiByte(CP_ACP, 0, short_path, static_cast<int>(length), bytes,
                                                           sizeof bytes, nullptr, nullptr);
  return {bytes, static_cast<std::size_t>(size)};
}

}  // namespace

std::string Program_Path() {
  char path[MAX_PATH + 1];
  std::string by_name(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
  if (Exists(by_name)) return by_name;
  std::string short_form = Short_Form();
  return Exists(short_form) ? short_form : by_name;
}

}  // namespace win32
