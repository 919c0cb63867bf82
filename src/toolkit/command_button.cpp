#include "toolkit/command_button.h"

#include <utility>

#include "toolkit/form.h"

namespace toolkit {

Command_Button::Command_Button(const Container& container, std::string name, int index)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Command_Button::User_Click() {
  if (Usable() && On_View()) Control::User_Click();
}

Button_Marks Command_Button::Marks() const { return {false, Held, Window.Enter_Button() == this}; }

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
