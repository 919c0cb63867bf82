// The whole backend with a window on the screen.
#pragma once

#include <gtest/gtest.h>

#include "toolkit/form.h"
#include "win32/win32_platform.h"
#include "win32/windows_api.h"

class Window_On_Screen : public ::testing::Test {
 protected:
  void Show() {
    Window.Move(1500, 1500);
    Window.Set_Client_Size(6000, 4500);
    Window.Show();
    Wait(100);
  }

  /// Lets events be served for that long.
  void Wait(int milliseconds) {
    const DWORD start = GetTickCount();
    for (int gone = 0; gone < milliseconds; gone = static_cast<int>(GetTickCount() - start))
      Platform.System().Loop.Wait_Events((milliseconds - gone) * 1000);
  }

  [[nodiscard]] HWND Handle() const { return win32::To_Window(Window.Handle()); }

  /// The first window of that class in the window.
  [[nodiscard]] HWND Child(const char* window_class) const {
    return FindWindowExA(Handle(), nullptr, window_class, nullptr);
  }

  win32::Win32_Platform Platform{GetModuleHandleA(nullptr)};
  toolkit::Backend& Backend = Platform.Backend();
  toolkit::Form Window{Backend, "Settings_Frm", toolkit::Form_Border::Fixed_Dialog};
};
