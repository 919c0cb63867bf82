#include "win32/shell_launcher.h"

#include "win32/system_library.h"

namespace win32 {

void Shell_Launcher::Open(const std::string& address, const std::string& directory) {
  constexpr int show_normal = 1;
  if (!library_) library_ = System_Library("shell32.dll");
  using Execute = HINSTANCE WINAPI(HWND, const char*, const char*, const char*, const char*, int);
  const auto execute = Find_Function<Execute>(library_.Get(), "ShellExecuteA");
  if (execute != nullptr) execute(nullptr, nullptr, address.c_str(), nullptr, directory.c_str(), show_normal);
}

}  // namespace win32
