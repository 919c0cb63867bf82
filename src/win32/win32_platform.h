// The program on Windows: the toolkit's window system, the services, and the loop that they run in.
#pragma once

#include <exception>
#include <functional>
#include <memory>

#include "platform/system.h"
#include "toolkit/backend.h"

namespace win32 {

class Win32_Platform {
 public:
  /// `instance` is the HINSTANCE that the process was started with.
  explicit Win32_Platform(void* instance);
  /// On a system with that code page.
  Win32_Platform(void* instance, unsigned code_page);
  Win32_Platform(const Win32_Platform&) = delete;
  Win32_Platform& operator=(const Win32_Platform&) = delete;
  ~Win32_Platform();

  [[nodiscard]] toolkit::Backend& Backend();
  [[nodiscard]] platform::System& System();

  enum class End { Ordinary, Failure, Consent };

  /// Calls `start` and serves messages until the program quits. An exception that ends the program is reported.
  End Run(const std::function<void()>& start);

  /// Reports an exception that ends the program in a message box. Returns Consent if it was a desktop too large, and
  /// the user would have the calendar work on such desktops.
  static End Report_Failure(const std::exception_ptr& failure);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace win32
