// Other running instances of the calendar, and the title by which they know this one.
#pragma once

#include <functional>
#include <string>

#include "platform/window_handle.h"

namespace platform {

/// The message that asks a window to close.
constexpr unsigned close_request = 16;

class Instances {
 public:
  virtual ~Instances() = default;

  /// Returns true if another instance of the same executable is running.
  virtual bool Other_Is_Running() = 0;

  /// A top-level window with that whole title, in any letter case; 0 if there is none. Of several it may be any; the
  /// system's service takes an instance's before another program's.
  virtual Window_Handle Find_Window(const std::string& title) = 0;

  /// Posts a message without parameters; doesn't wait for it to be handled.
  virtual void Post(Window_Handle window, unsigned message) = 0;

  /// Sets the title of this process's own hidden top-level window, which starts as "Meridex Loading".
  virtual void Set_Title(const std::string& title) = 0;

  /// Called when that hidden window is asked to close.
  std::function<void()> On_Close_Request;
};

}  // namespace platform
