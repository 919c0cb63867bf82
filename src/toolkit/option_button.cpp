#include "toolkit/option_button.h"

#include <algorithm>
#include <utility>

#include "toolkit/form.h"

namespace toolkit {

Option_Button::Option_Button(const Container& container, std::string name, int index)
    : Control(container, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Option_Button::User_Click() {
  if (!Usable() || !On_View()) return;
  if (!Value) Value = true;
  else Control::User_Click();
}

void Option_Button::Changed(Aspect aspect) {
  Control::Changed(aspect);
  if (aspect != Aspect::Value || !Value) return;
  for (Option_Button* const other : Group())
    if (other != this) other->Value = false;
  if (On_Click) On_Click();
}

std::vector<Option_Button*> Option_Button::Group() const {
  std::vector<Option_Button*> group;
  for (Control* const control : Window.Controls()) {
    auto* const option = dynamic_cast<Option_Button*>(control);
    if (option != nullptr && option->In == In) group.push_back(option);
  }
  return group;
}

bool Option_Button::Tab_Stop() const {
  const auto group = Group();
  const auto is_on = [](const Option_Button* option) { return option->Value() && option->Can_Have_Focus(); };
  if (std::any_of(group.begin(), group.end(), is_on)) return Value;
  const auto first =
      std::find_if(group.begin(), group.end(), [](const auto* option) { return option->Can_Have_Focus(); });
  return first != group.end() && *first == this;
}

bool Option_Button::Key_Down(const Key& key) {
  switch (key.Code) {
    case key_space: Held = true; return true;
    case key_up:
    case key_left: Go_To_Next(true); return true;
    case key_down:
    case key_right: Go_To_Next(false); return true;
    case key_home:
    case key_page_up: Go_To(*Group_In_Reach().front()); return true;
    case key_end:
    case key_page_down: Go_To(*Group_In_Reach().back()); return true;
    default: return false;
  }
}

void Option_Button::Go_To_Next(bool backwards) {
  std::vector<Option_Button*> group = Group_In_Reach();
  if (backwards) std::reverse(group.begin(), group.end());
  auto next = std::find(group.begin(), group.end(), this) + 1;
  if (next == group.end()) next = group.begin();
  Go_To(**next);
}

/// The options of the group that can have the focus, with this one.
std::vector<Option_Button*> Option_Button::Group_In_Reach() const {
  std::vector<Option_Button*> group = Group();
  std::erase_if(group, [this](const auto* option) { return option != this && !option->Can_Have_Focus(); });
  return group;
}

void Option_Button::Go_To(Option_Button& option) {
  if (&option == this) return;
  Window.System().Input.Move_Focus(Window, &option);
  option.Value = true;
}

/// The space key clicks when it goes up, unless the focus has moved on meanwhile.
void Option_Button::Key_Up(const Key& key) {
  if (key.Code != key_space || !Held) return;
  Held = false;
  User_Click();
}

}  // namespace toolkit
