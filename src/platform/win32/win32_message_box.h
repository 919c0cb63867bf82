// The system's message boxes, over all of the program's windows.
#pragma once

#include "platform/message_box.h"
#include "platform/win32/window_context.h"

namespace platform::win32 {

class Win32_Message_Box final : public Message_Box {
 public:
  explicit Win32_Message_Box(Window_Context& context) : context_(context) {}

  Box_Answer Show(const std::string& title, const std::string& text, Box_Icon icon, Box_Buttons buttons) override;

 private:
  Window_Context& context_;
};

}  // namespace platform::win32
