#include "toolkit/check_box.h"

#include <utility>

namespace toolkit {

Check_Box::Check_Box(const Container& container, std::string name, int index)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Check_Box::User_Click() {
  if (Usable() && On_View()) Value = Value() == 1 ? 0 : 1;
}

bool Check_Box::Key_Down(const Key& key) {
  if (key.Code != key_space) return false;
  Held = true;
  return true;
}

/// The space key clicks when it goes up, unless the focus has moved on meanwhile.
void Check_Box::Key_Up(const Key& key) {
  if (key.Code != key_space || !Held) return;
  Held = false;
  User_Click();
}

void Check_Box::Changed(Aspect aspect) {
  Control::Changed(aspect);
  if (aspect == Aspect::Value && On_Click) On_Click();
}

}  // namespace toolkit
