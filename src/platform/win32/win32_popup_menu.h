// The system's popup menus.
#pragma once

#include "platform/popup_menu.h"
#include "platform/win32/window_context.h"

namespace platform::win32 {

class Win32_Popup_Menu final : public Popup_Menu {
 public:
  explicit Win32_Popup_Menu(Window_Context& context) : context_(context) {}

  int Track(Window_Handle owner, const std::vector<Menu_Item>& items) override;

 private:
  Window_Context& context_;
};

}  // namespace platform::win32
