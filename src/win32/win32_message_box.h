// The system's message boxes, over all of the program's windows.
#pragma once

#include "platform/message_box.h"
#include "toolkit/backend.h"
#include "win32/window_context.h"

namespace win32 {

class Win32_Message_Box final : public platform::Message_Box {
 public:
  Win32_Message_Box(Window_Context& context, toolkit::Backend& backend) : context_(context), backend_(backend) {}

  platform::Box_Answer Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                            platform::Box_Buttons buttons) override;

 private:
  Window_Context& context_;
  toolkit::Backend& backend_;
};

}  // namespace win32
