// The system's popup menus.
#pragma once

#include "platform/popup_menu.h"
#include "toolkit/input.h"
#include "win32/window_context.h"

namespace win32 {

class Win32_Popup_Menu final : public platform::Popup_Menu {
 public:
  Win32_Popup_Menu(Window_Context& context, toolkit::Input& input) : context_(context), input_(input) {}

  int Track(platform::Window_Handle owner, const std::vector<platform::Menu_Item>& items) override;

 private:
  Window_Context& context_;
  toolkit::Input& input_;
};

}  // namespace win32
