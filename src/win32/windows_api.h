// The system's own header, as all files of this folder include it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "basic/run_error.h"
#include "platform/window_handle.h"

namespace win32 {

inline platform::Window_Handle To_Handle(HWND window) { return reinterpret_cast<platform::Window_Handle>(window); }
inline HWND To_Window(platform::Window_Handle handle) { return reinterpret_cast<HWND>(handle); }

/// The active window of this thread, nullptr if it is another thread's: inside the shell's window the two share one
/// state.
inline HWND Own_Active_Window() {
  const HWND active = GetActiveWindow();
  return active != nullptr && GetWindowThreadProcessId(active, nullptr) == GetCurrentThreadId() ? active : nullptr;
}

/// A window that the system was asked to make. Throws error 429 where it made none.
inline HWND Made(HWND window) {
  if (window == nullptr) throw basic::Run_Error(basic::Error_Number::No_Object);
  return window;
}

/// A text of the system's code page for those parts of the system that know no code pages.
inline std::wstring Wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size)));
  return wide;
}

/// A function of a library; nullptr if the library or the function is missing.
template <class Function>
Function* Find_Function(HMODULE library, const char* name) {
  if (library == nullptr) return nullptr;
  return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
}

}  // namespace win32
