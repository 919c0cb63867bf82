#include "win32/accessible_form.h"

#include <algorithm>

#include "toolkit/form.h"
#include "win32/form_window.h"

namespace win32 {

namespace {

/// The one of that number, from 1 on; nullptr if there is none.
toolkit::Control* Control_Of_Number(const toolkit::Form& form, int number) {
  const std::vector<toolkit::Control*> heard = toolkit::Heard_Controls(form);
  const bool there = number > 0 && number <= static_cast<int>(heard.size());
  return there ? heard[static_cast<std::size_t>(number) - 1] : nullptr;
}

/// 0 for nullptr.
int Number_Of_Control(const toolkit::Form& form, const toolkit::Control* control) {
  const std::vector<toolkit::Control*> heard = toolkit::Heard_Controls(form);
  const auto found = std::find(heard.begin(), heard.end(), control);
  return found == heard.end() ? 0 : static_cast<int>(found - heard.begin()) + 1;
}

/// A message's second parameter: what is wished, and of which part.
LPARAM Packed(int part, Wish wish) { return (static_cast<LPARAM>(part) + 1) * 2 + static_cast<LPARAM>(wish); }

}  // namespace

HWND Accessible_Form::Window() const { return To_Window(form_.Handle()); }

toolkit::Control* Accessible_Form::Control(int number) const { return Control_Of_Number(form_, number); }

int Accessible_Form::Number_Of(const toolkit::Control* control) const { return Number_Of_Control(form_, control); }

toolkit::Heard Accessible_Form::Hear(int number) const {
  const toolkit::Control* const control = Control(number);
  return control != nullptr ? toolkit::Hear(*control) : toolkit::Hear(form_);
}

RECT Accessible_Form::Place(int number) const {
  RECT place;
  if (const HWND own = Window_Of(number)) {
    GetWindowRect(own, &place);
    return place;
  }
  const toolkit::Control* const control = Control(number);
  if (control != nullptr) place = scale_.Pixels(control->In_Window());
  else GetClientRect(Window(), &place);
  MapWindowPoints(Window(), nullptr, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

int Accessible_Form::At(POINT on_screen) const {
  ScreenToClient(Window(), &on_screen);
  toolkit::Control* const control = Control_At(form_, scale_, on_screen);
  return control != nullptr ? Number_Of(&toolkit::Speaker_Of(*control)) : 0;
}

int Accessible_Form::Beside(int number, toolkit::Way way) const {
  return Number_Of(toolkit::Neighbour(form_, Control(number), way));
}

int Accessible_Form::Focused() const {
  if (form_.System().Active_Form() != &form_) return -1;
  return Number_Of(form_.Focused());
}

HWND Accessible_Form::Window_Of(int number) const {
  const toolkit::Control* const control = Control(number);
  return control != nullptr ? To_Window(form_.Handle_Of(*control)) : nullptr;
}

IDispatch* Accessible_Form::Parent() const { return Services().Object_Of(Window(), OBJID_WINDOW); }

int Accessible_Form::Number_In_Form(const toolkit::Control& control) {
  return Number_Of_Control(control.Window, &control);
}

void Accessible_Form::Fulfil(const toolkit::Control& control, int part, Wish wish) {
  // Without a number it would be a wish for the window.
  if (const int number = Number_In_Form(control)) Post(control.Window, number, part, wish);
}

void Accessible_Form::Post(const toolkit::Form& form, int number, int part, Wish wish) {
  PostMessageA(To_Window(form.Handle()), reader_wishes, static_cast<WPARAM>(number), Packed(part, wish));
}

void Accessible_Form::Do(WPARAM w, LPARAM l) const {
  toolkit::Control* const control = Control(static_cast<int>(w));
  const int part = static_cast<int>(l / 2) - 1;
  const bool focus = l % 2 == static_cast<LPARAM>(Wish::Focus);
  if (w == 0 && focus) toolkit::Give_Focus(form_);
  if (control == nullptr) return;
  const bool drop_down = control->Kind() == toolkit::Role::Drop_Down;
  if (focus) {
    toolkit::Give_Focus(*control);
  } else if (part >= 0) {
    // The list closes with the pick, as under the user's hand.
    if (drop_down) SendMessageA(To_Window(form_.Handle_Of(*control)), CB_SHOWDROPDOWN, FALSE, 0);
    toolkit::Select_Part(*control, part);
  } else if (drop_down) {
    Open_List(*control);
  } else {
    toolkit::Act_On(*control);
  }
}

/// The list is the system's own, and opens where the focus is.
void Accessible_Form::Open_List(toolkit::Control& control) const {
  const HWND box = To_Window(form_.Handle_Of(control));
  if (toolkit::Give_Focus(control)) SendMessageA(box, CB_SHOWDROPDOWN, TRUE, 0);
}

void Accessible_Form::Changed(const toolkit::Control& control, toolkit::Aspect aspect) {
  if (aspect == toolkit::Aspect::Visible) {
    changes_ = renamed_.size() + 1;
  } else if (aspect == toolkit::Aspect::Caption && changes_ <= renamed_.size() && control.On_View()) {
    const toolkit::Control* const speaker = control.Heard_With;
    if (changes_ < renamed_.size()) renamed_[changes_] = speaker != nullptr ? speaker : &control;
    ++changes_;
  }
}

/// A few new names are told one by one, more of them as a new order: another month is one event to a reader.
void Accessible_Form::Tell_Changes() {
  const std::size_t changes = std::exchange(changes_, 0);
  if (!form_.Visible()) return;
  if (changes > renamed_.size()) return Services().Tell(EVENT_OBJECT_REORDER, Window(), 0);
  // A reader may ask for the window in between, and others may change by that.
  const auto renamed = renamed_;
  for (std::size_t i = 0; i < changes; ++i)
    if (const int number = Number_Of(renamed[i])) Services().Tell(EVENT_OBJECT_NAMECHANGE, Window(), number);
}

}  // namespace win32
