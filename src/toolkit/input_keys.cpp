// The keys on the one road of input, and the focus that they go to.
#include <algorithm>

#include "basic/text.h"
#include "toolkit/accelerator.h"
#include "toolkit/command_button.h"
#include "toolkit/form.h"
#include "toolkit/input.h"

namespace toolkit {

bool Input::Key_Down(Form& form, const Key& key) {
  if (!form.Accepts_Input()) return false;
  if (key.Alt) return false;
  if (key.Code == key_tab && !key.Ctrl) return Focus_Next(form, key.Shift);
  Control* const focused = form.Focused();
  if (focused != nullptr && focused->Key_Down(key)) return true;
  // With Ctrl it breaks a line of text even where a button is the default one.
  if (key.Code == key_enter && !key.Ctrl) return Press_Enter(form);
  return key.Code == key_escape && Press_Escape(form);
}

void Input::Key_Up(Form& form, const Key& key) const {
  if (!form.Accepts_Input()) return;
  Control* const focused = form.Focused();
  if (focused != nullptr) focused->Key_Up(key);
  if (Is_There(&form) && form.On_Key_Up) form.On_Key_Up(key.Code);
}

bool Input::Press_Enter(Form& form) {
  Command_Button* const button = form.Enter_Button();
  if (button == nullptr) return false;
  button->User_Click();
  return true;
}

bool Input::Press_Escape(Form& form) {
  Command_Button* const button = form.Escape_Button();
  if (button == nullptr) return false;
  button->User_Click();
  return true;
}

bool Input::Accelerator(Form& form, char character) {
  if (!form.Accepts_Input()) return false;
  const char wanted = basic::Upper_Case(std::string_view(&character, 1)).front();
  const auto& controls = form.Controls();
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control* control) {
    const std::string* const caption = control->Caption_With_Accelerator();
    return caption != nullptr && control->On_View() && control->Usable() && Accelerator_Of(*caption) == wanted;
  });
  if (found == controls.end()) return false;
  Control& control = **found;
  // A label's accelerator leads to the control after it.
  const auto taker = std::find_if(found, controls.end(), [](const Control* other) { return other->Can_Have_Focus(); });
  if (taker == controls.end()) return false;
  Move_Focus(form, *taker);
  if (taker == found && Is_There(&form, &control)) control.User_Click();
  return true;
}

/// Returns false if no control takes the focus.
bool Input::Focus_Next(Form& form, bool backwards) {
  std::vector<Control*> takers;
  for (Control* const control : form.Controls())
    if (control == form.Focused() || (control->Can_Have_Focus() && control->Tab_Stop())) takers.push_back(control);
  if (takers.empty()) return false;
  if (backwards) std::reverse(takers.begin(), takers.end());
  const auto now = std::find(takers.begin(), takers.end(), form.Focused());
  Control& next = now == takers.end() || now + 1 == takers.end() ? *takers.front() : **(now + 1);
  Move_Focus(form, &next);
  if (Is_There(&form, &next)) next.Focused_By_Key();
  return true;
}

void Input::Focus_Came(Control& control) {
  if (control.Window.Focused() != &control) Move_Focus(control.Window, &control);
}

void Input::Move_Focus(Form& form, Control* control) {
  form.Keep_Focus(control);
  if (backend_.Active_Form() == &form) form.Show_Focus();
}

void Input::Focus_Refused(Form& form) {
  const auto& controls = form.Controls();
  const auto lost = std::find(controls.begin(), controls.end(), form.Last_Focus());
  const auto can = [](const Control* control) { return control->Can_Have_Focus(); };
  auto next = std::find_if(lost, controls.end(), can);
  if (next == controls.end()) next = std::find_if(controls.begin(), controls.end(), can);
  Move_Focus(form, next == controls.end() ? nullptr : *next);
}

}  // namespace toolkit
