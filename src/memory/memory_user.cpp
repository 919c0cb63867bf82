#include "memory/memory_user.h"

#include <algorithm>

#include "toolkit/form.h"

namespace memory {

namespace {

using toolkit::Control;
using toolkit::Form;
using toolkit::Mouse_Event;

/// The place from the top left of the window's client area, which is the window's own: windows have no borders here.
Mouse_Event In_Window(const Control* control, Mouse_Event event) {
  if (control == nullptr) return event;
  const toolkit::Bounds place = control->In_Window();
  event.X += place.Left;
  event.Y += place.Top;
  return event;
}

/// The window that a move or a release goes to, what is under the pointer there, and the place as seen from there.
struct Seen {
  Form* window;
  std::optional<Control*> over;
  Mouse_Event event;
};

/// What is at a place of a control (nullptr: of the bare window): that control, or nothing if the place lies outside it
/// or it isn't visible.
std::optional<Control*> Under(const Form& window, Control* control, const Mouse_Event& event) {
  const toolkit::Bounds place =
      control != nullptr ? control->In_Twips() : toolkit::Bounds{0, 0, window.Width, window.Height};
  const bool inside = toolkit::Bounds{0, 0, place.Width, place.Height}.Contains(event.X, event.Y);
  if (!inside || (control != nullptr && !control->On_View())) return std::nullopt;
  return control;
}

/// If a window holds the mouse, moves and releases go to it, wherever the pointer is.
Seen See(const Memory_Windows& windows, Form& window, Control* control, const Mouse_Event& event) {
  Seen seen{&window, Under(window, control, event), In_Window(control, event)};
  if (windows.Mouse() == nullptr || &windows.Mouse()->Form() == &window) return seen;
  seen.window = &windows.Mouse()->Form();
  seen.over = std::nullopt;
  seen.event.X += window.Left - seen.window->Left;
  seen.event.Y += window.Top - seen.window->Top;
  return seen;
}

std::size_t Line_Start(const std::string& text, std::size_t at) {
  const std::size_t end = at == 0 ? std::string::npos : text.rfind('\n', at - 1);
  return end == std::string::npos ? 0 : end + 1;
}

std::size_t Line_End(const std::string& text, std::size_t at) { return std::min(text.find("\r\n", at), text.size()); }

/// The same column in the line before or after, or the end of that line if it is shorter.
std::size_t In_Other_Line(const std::string& text, std::size_t at, bool before) {
  const std::size_t line = Line_Start(text, at), column = at - line, end = Line_End(text, at);
  if (before && line == 0) return at;
  if (!before && end == text.size()) return at;
  const std::size_t other = before ? Line_Start(text, line - 2) : end + 2;
  return std::min(other + column, Line_End(text, other));
}

/// Where a key moves the caret, from the start or the end of the selection. Lines break only at CR LF; a page is as
/// long as the whole text.
std::size_t Caret_After(const std::string& text, std::size_t start, std::size_t end, int key) {
  switch (key) {
    case toolkit::key_left: return start - (start == 0 ? 0 : text.substr(0, start).ends_with("\r\n") ? 2 : 1);
    case toolkit::key_right: return std::min(end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1), text.size());
    case toolkit::key_home: return Line_Start(text, start);
    case toolkit::key_end: return Line_End(text, end);
    case toolkit::key_up: return In_Other_Line(text, start, true);
    case toolkit::key_down: return In_Other_Line(text, end, false);
    case toolkit::key_page_up: return 0;
    default: return text.size();
  }
}

}  // namespace

void Memory_User::Press(Form& window, Control* control, const Mouse_Event& event) {
  Begin(window, control, event, false);
}

void Memory_User::Press_Twice(Form& window, Control* control, const Mouse_Event& event) {
  Begin(window, control, event, true);
}

void Memory_User::Begin(Form& window, Control* control, const Mouse_Event& event, bool twice) {
  Form* to = &window;
  Mouse_Event place = In_Window(control, event);
  // A second button goes to the window that holds the mouse. If the same button is pressed again, its release was lost.
  if (windows_.Mouse() != nullptr && !input_.Holds(event.Button)) {
    const Seen seen = See(windows_, window, control, event);
    to = seen.window;
    place = seen.event;
  }
  if (twice) input_.Press_Twice(*to, control, place);
  else input_.Press(*to, control, place);
}

void Memory_User::Move(Form& window, Control* control, const Mouse_Event& event) {
  const bool held = windows_.Mouse() != nullptr;
  const Seen seen = See(windows_, window, control, event);
  // If no window holds the mouse, a move always goes to the control, even if the place lies outside it.
  input_.Move(*seen.window, held ? seen.over : control, seen.event);
}

void Memory_User::Release(Form& window, Control* control, const Mouse_Event& event) {
  const Seen seen = See(windows_, window, control, event);
  input_.Release(*seen.window, seen.over, seen.event);
}

void Memory_User::Press_Key(Form& window, const Typed_Key& key) {
  const bool alt_alone = key.Key.Alt && !key.Key.Ctrl;
  const bool taken = input_.Key_Down(window, key.Key) ||
                     (alt_alone && key.Text.size() == 1 && input_.Accelerator(window, key.Text.front()));
  if (!taken && alt_alone && key.Key.Code == toolkit::key_f4) window.Close_Requested();
  const bool types = !key.Key.Alt && (!key.Key.Ctrl || key.Key.Code == toolkit::key_enter);
  if (!taken && input_.Is_There(&window) && window.Accepts_Input() && types)
    if (auto* const box = dynamic_cast<toolkit::Text_Box*>(window.Focused())) Key_In_Text_Box(*box, key);
  if (Form* const active = windows_.Active()) input_.Key_Up(*active, key.Key);
}

void Memory_User::Type(toolkit::Text_Box& box, const std::string& text) {
  if (!Take_Focus(box)) return;
  box.SelStart.Keep(static_cast<int>(text.size()));
  box.SelLength.Keep(0);
  box.User_Text(text);
}

void Memory_User::Pick(Control& control, int item) {
  if (auto* const list = dynamic_cast<toolkit::Item_List*>(&control)) list->User_Select(item);
  if (auto* const strip = dynamic_cast<toolkit::Tab_Strip*>(&control)) strip->User_Select(item);
}

void Memory_User::Choose(toolkit::Combo_Box& box, std::string_view item) {
  if (!Take_Focus(box)) return;
  int index = 0;
  while (index < box.ListCount() && box.List(index) != item) ++index;
  if (index < box.ListCount()) box.User_Select(index);
}

/// The window becomes active by it, which may change what is in it. Returns whether the control can be used after that.
bool Memory_User::Take_Focus(Control& control) {
  Form& window = control.Window;
  window.Set_Focus(control);
  return input_.Is_There(&window, &control) && control.On_View() && control.Usable();
}

void Memory_User::Slide(toolkit::Slider& slider, int value) {
  Form& window = slider.Window;
  if (!Take_Focus(slider)) return;
  slider.User_Press();
  if (input_.Is_There(&window, &slider)) slider.User_Scroll(value);
  if (input_.Is_There(&window, &slider)) slider.User_Release();
}

void Memory_User::Key_In_Text_Box(toolkit::Text_Box& box, const Typed_Key& key) {
  if (!key.Text.empty()) return box.User_Character(key.Text);
  if (key.Key.Code < toolkit::key_page_up || key.Key.Code > toolkit::key_down) return;
  if (key.Key.Shift) throw Not_Supported("selecting by keys in the in-memory text box");
  const std::string& text = box.Text;
  const auto start = static_cast<std::size_t>(box.SelStart());
  const std::size_t end = start + static_cast<std::size_t>(box.SelLength());
  box.SelStart.Keep(static_cast<int>(Caret_After(text, start, end, key.Key.Code)));
  box.SelLength.Keep(0);
}

}  // namespace memory
