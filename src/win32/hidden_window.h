// A window that is never shown: it takes messages for a service that has no window of its own.
#pragma once

#include "win32/handle.h"

namespace win32 {

class Guard;

class Hidden_Window {
 public:
  /// Registers the class for this process and makes the window, a top-level one.
  Hidden_Window(HINSTANCE instance, Guard& guard, const char* window_class, const char* title);
  Hidden_Window(const Hidden_Window&) = delete;
  Hidden_Window& operator=(const Hidden_Window&) = delete;

  [[nodiscard]] HWND Window() const { return window_.Get(); }

 protected:
  ~Hidden_Window() = default;

  /// Runs Message as a callback of the system asks. Returns true if the message is handled.
  bool Take(UINT message, WPARAM w);

  /// Returns true if the message is handled.
  virtual bool Message(UINT message, WPARAM w) = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);

  Guard& guard_;
  Window_Owner window_;
};

}  // namespace win32
