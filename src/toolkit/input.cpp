#include "toolkit/input.h"

#include <algorithm>
#include <utility>

#include "toolkit/form.h"

namespace toolkit {

namespace {

int Bit(Mouse_Button button) { return static_cast<int>(button); }

/// The same place as seen from a control's top left.
Mouse_Event Within(const Control& control, Mouse_Event event) {
  const Bounds place = control.In_Window();
  event.X -= place.Left;
  event.Y -= place.Top;
  return event;
}

}  // namespace

void Input::Press(Form& form, Control* over, const Mouse_Event& event) { Begin_Press(form, over, event, false); }

void Input::Press_Twice(Form& form, Control* over, const Mouse_Event& event) { Begin_Press(form, over, event, true); }

void Input::Begin_Press(Form& form, Control* over, const Mouse_Event& event, bool twice) {
  const bool joins = held_ != 0 && !Holds(event.Button) && pressed_window_ == &form;
  if (joins) over = pressed_;
  if (!Bring_Up(form, over)) return;
  if (!joins && over != nullptr && over->Can_Have_Focus() && event.Button == Mouse_Button::Left) {
    Move_Focus(form, over);
    if (!Is_There(&form, over)) return;
  }
  const bool double_click = twice && event.Button == Mouse_Button::Left && (over == nullptr || over->Double_Clicks());
  Hold(form, over, event.Button, double_click);
  if (over == nullptr || !over->Usable()) return;
  if (double_click) {
    if (over->On_Double_Click) over->On_Double_Click();
  } else if (over->On_Mouse_Down) {
    over->On_Mouse_Down(Within(*over, event));
  }
}

/// Makes the window active. Returns whether the user can still reach it and the control after that.
bool Input::Bring_Up(Form& form, const Control* over) {
  form.Activate();
  Tell_Of_Activity();
  return Is_There(&form, over) && form.Accepts_Input();
}

void Input::Hold(Form& form, Control* over, Mouse_Button button, bool twice) {
  const bool joins = held_ != 0 && pressed_window_ == &form && pressed_ == over && !Holds(button);
  if (!joins) Drop_Press();
  pressed_window_ = &form;
  pressed_ = over;
  held_ |= Bit(button);
  form.Capture_Mouse();
  if (button != Mouse_Button::Left) return;
  may_click_ = !twice;
  if (over != nullptr && over->Usable()) over->Show_Held(true);
}

void Input::Move(Form& form, std::optional<Control*> over, const Mouse_Event& event) {
  Control* target = over.value_or(nullptr);
  if (held_ != 0) {
    target = pressed_;
    if (target != nullptr && may_click_ && Holds(Mouse_Button::Left)) target->Show_Held(over == target);
  } else if (!form.Accepts_Input()) {
    return;
  }
  if (target != nullptr && target->Usable() && target->On_Mouse_Move) target->On_Mouse_Move(Within(*target, event));
}

void Input::Release(Form& form, std::optional<Control*> over, const Mouse_Event& event) {
  if (pressed_window_ != &form || !Holds(event.Button)) return;
  Control* const target = pressed_;
  held_ &= ~Bit(event.Button);
  const bool click = event.Button == Mouse_Button::Left && std::exchange(may_click_, false) && over == target;
  if (target != nullptr && event.Button == Mouse_Button::Left) target->Show_Held(false);
  if (held_ == 0) {
    Drop_Press();
    form.Release_Mouse();
  }
  if (target == nullptr) {
    if (click && form.On_Click) form.On_Click();
    return;
  }
  if (!target->Usable()) return;
  const bool click_first = click && target->Clicks_Before_Release();
  if (click_first) target->User_Click();
  if (!Is_There(&form, target)) return;
  if (target->On_Mouse_Up) target->On_Mouse_Up(Within(*target, event));
  if (click && !click_first && Is_There(&form, target)) target->User_Click();
}

void Input::Drop_Press() {
  if (pressed_ != nullptr && Is_There(pressed_window_, pressed_)) pressed_->Show_Held(false);
  pressed_window_ = nullptr;
  pressed_ = nullptr;
  held_ = 0;
  may_click_ = false;
}

void Input::Mouse_Lost() { Drop_Press(); }

void Input::Take_Mouse() {
  Form* const form = Mouse_Window();
  Drop_Press();
  if (form != nullptr) form->Release_Mouse();
}

void Input::Activity_Came(Form& form) {
  // The system gives the activity back to an owner whose own going takes the active window along.
  if (form.Unloading()) return;
  if (form.Focused() == nullptr) Focus_Refused(form);
  else Move_Focus(form, form.Focused());
  if (told_active_ == &form || Modal_Open()) return;
  told_active_ = &form;
  untold_.push_back({&form, true});
}

void Input::Activity_Went(Form& form) {
  Let_Go_Of_Space(form);
  if (!Is_There(&form) || form.Unloading() || Modal_Open()) return;
  if (told_active_ == &form) told_active_ = nullptr;
  untold_.push_back({&form, false});
}

void Input::Tell_Of_Activity() {
  while (!untold_.empty()) {
    const Activity next = untold_.front();
    untold_.erase(untold_.begin());
    const auto& handler = next.came ? next.form->On_Activate : next.form->On_Deactivate;
    if (handler) handler();
  }
}

void Input::Catch_Up() {
  if (Modal_Open()) return;
  Form* const active = backend_.Active_Form();
  if (told_active_ != nullptr && told_active_ != active) Activity_Went(*told_active_);
  if (active != nullptr) Activity_Came(*active);
  Tell_Of_Activity();
}

void Input::Let_Go_Of_Space(const Form& form) {
  if (Control* const focused = form.Focused()) focused->Show_Held(false);
}

void Input::Remove(Form& form) {
  if (pressed_window_ == &form) Drop_Press();
  Let_Go_Of_Space(form);
  std::erase(forms_, &form);
  std::erase_if(untold_, [&](const Activity& activity) { return activity.form == &form; });
  if (told_active_ == &form) told_active_ = nullptr;
}

void Input::Remove(const Control& control) {
  if (pressed_ != &control) return;
  // The press goes on without it: what is left of it reaches nothing.
  pressed_ = nullptr;
  may_click_ = false;
}

bool Input::Is_There(const Form* form) const { return std::find(forms_.begin(), forms_.end(), form) != forms_.end(); }

bool Input::Is_There(const Form* form, const Control* control) const {
  if (!Is_There(form)) return false;
  if (control == nullptr) return true;
  const auto& controls = form->Controls();
  return std::find(controls.begin(), controls.end(), control) != controls.end();
}

Input::Modal::Modal(Input& input, const Form* owner) : input_(input) {
  input_.Take_Mouse();
  for (const Form* const form : input_.forms_) Let_Go_Of_Space(*form);
  ++input_.modals_;
  Tell_Windows(owner);
}

Input::Modal::~Modal() {
  --input_.modals_;
  Tell_Windows(nullptr);
}

void Input::Modal::Tell_Windows(const Form* but) const {
  for (Form* const form : input_.forms_)
    if (form != but) form->Input_Allowed_Changed();
}

}  // namespace toolkit
