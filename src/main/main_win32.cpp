// The entry of the program on Windows.
#include <windows.h>

#include "main/meridex.h"
#include "win32/win32_platform.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  try {
    win32::Win32_Platform platform(instance);
    Meridex program(platform.Backend(), platform.System());
    return platform.Run([&] { program.Start(); });
  } catch (...) {
    return win32::Win32_Platform::Report_Failure(std::current_exception());
  }
}
