// The windows of the desktop's shell: the calls that the calendar makes to live among them. Failures are silent.
#pragma once

#include <string>

#include "platform/window_handle.h"

namespace platform {

class Desktop_Shell {
 public:
  virtual ~Desktop_Shell() = default;

  /// The top window of that class and caption, 0 if there is none.
  virtual Window_Handle Find_Top_Window(const std::string& window_class, const std::string& caption) = 0;

  /// The first child of that class, 0 if there is none.
  virtual Window_Handle Find_Child(Window_Handle parent, const std::string& window_class) = 0;

  /// Sends a message with wParam 0 and gives its result, cut to 32 bits.
  virtual int Send(Window_Handle window, unsigned message, int parameter) = 0;

  /// Moves a window under another one.
  virtual void Set_Parent(Window_Handle window, Window_Handle parent) = 0;

  /// Marks the whole of a window for erasing and painting, and paints at once what is marked.
  virtual void Invalidate(Window_Handle window) = 0;
  virtual void Update(Window_Handle window) = 0;
};

}  // namespace platform
