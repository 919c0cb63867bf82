// The entry of the program on Windows.
#include <windows.h>

#include "main/meridex.h"
#include "settings/desktop_mode.h"
#include "win32/win32_platform.h"

namespace {

using End = win32::Win32_Platform::End;

/// A whole program, from its start to the end of its last window.
End Run_Program(HINSTANCE instance) {
  try {
    win32::Win32_Platform platform(instance);
    Meridex program(platform.Backend(), platform.System());
    const End end = platform.Run([&] { program.Start(); });
    if (end == End::Consent) settings::Desktop_Mode(platform.System().Store).Store_Consent();
    return end;
  } catch (...) {
    return win32::Win32_Platform::Report_Failure(std::current_exception());
  }
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  End end = Run_Program(instance);
  // The consent counts from the next start on: that is now, when nothing of the first program is left.
  while (end == End::Consent) end = Run_Program(instance);
  return end == End::Ordinary ? 0 : 1;
}
