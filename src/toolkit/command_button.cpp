#include "toolkit/command_button.h"

#include <utility>

namespace toolkit {

Command_Button::Command_Button(Form& window, std::string name, int index)
    : Control(window, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Command_Button::User_Click() {
  if (Enabled && Visible) Control::User_Click();
}

bool Command_Button::Key_Down(const Key& key) {
  if (key.Code != key_space) return false;
  Held = true;
  return true;
}

/// The space key clicks when it goes up, unless the focus has moved on meanwhile.
void Command_Button::Key_Up(const Key& key) {
  if (key.Code != key_space || !Held) return;
  Held = false;
  User_Click();
}

}  // namespace toolkit
