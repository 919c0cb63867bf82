#include "memory/memory_user.h"

#include <stdexcept>

#include "toolkit/form.h"

namespace memory {

namespace {

using toolkit::Control;
using toolkit::Form;
using toolkit::Mouse_Event;

/// The place as seen from the top left of a window's client area, which is that of the window.
Mouse_Event In_Window(const Control* control, Mouse_Event event) {
  if (control == nullptr) return event;
  event.X += control->In_Twips().Left;
  event.Y += control->In_Twips().Top;
  return event;
}

/// The window that a move or a release goes to, and the place as seen from there.
struct Seen {
  Form* window;
  Control* over;
  Mouse_Event event;
};

/// The one window that has the mouse sees it everywhere.
Seen See(const Memory_Windows& windows, Form& window, Control* control, const Mouse_Event& event) {
  const bool shown = control == nullptr || control->Visible;
  const bool inside =
      control == nullptr ||
      toolkit::Bounds{0, 0, control->In_Twips().Width, control->In_Twips().Height}.Contains(event.X, event.Y);
  Seen seen{&window, shown && inside ? control : nullptr, In_Window(control, event)};
  if (windows.Mouse() == nullptr || &windows.Mouse()->Form() == &window) return seen;
  seen.window = &windows.Mouse()->Form();
  seen.over = nullptr;
  seen.event.X += window.Left - seen.window->Left;
  seen.event.Y += window.Top - seen.window->Top;
  return seen;
}

std::size_t Line_Start(const std::string& text, std::size_t at) {
  const std::size_t end = at == 0 ? std::string::npos : text.rfind('\n', at - 1);
  return end == std::string::npos ? 0 : end + 1;
}

std::size_t Line_End(const std::string& text, std::size_t at) { return std::min(text.find("\r\n", at), text.size()); }

}  // namespace

void Memory_User::Press(Form& window, Control* control, const Mouse_Event& event) {
  input_.Press(window, control, In_Window(control, event));
}

void Memory_User::Press_Twice(Form& window, Control* control, const Mouse_Event& event) {
  input_.Press_Twice(window, control, In_Window(control, event));
}

void Memory_User::Move(Form& window, Control* control, const Mouse_Event& event) {
  const bool held = windows_.Mouse() != nullptr;
  const Seen seen = See(windows_, window, control, event);
  // A move over a control is meant for it, wherever the place lies; only what has the mouse looks at the place.
  input_.Move(*seen.window, held ? seen.over : control, seen.event);
}

void Memory_User::Release(Form& window, Control* control, const Mouse_Event& event) {
  const Seen seen = See(windows_, window, control, event);
  input_.Release(*seen.window, seen.over, seen.event);
}

void Memory_User::Press_Key(Form& window, const Typed_Key& key) {
  const bool taken = input_.Key_Down(window, key.Key) ||
                     (key.Key.Alt && key.Text.size() == 1 && input_.Accelerator(window, key.Text.front()));
  if (!taken && input_.Is_There(&window) && window.Accepts_Input() && !key.Key.Alt && !key.Key.Ctrl)
    if (auto* const box = dynamic_cast<toolkit::Text_Box*>(window.Focused())) Key_In_Text_Box(*box, key);
  if (Form* const active = windows_.Active()) input_.Key_Up(*active, key.Key);
}

void Memory_User::Type(toolkit::Text_Box& box, const std::string& text) {
  box.Window.Set_Focus(box);
  box.SelStart.Keep(static_cast<int>(text.size()));
  box.SelLength.Keep(0);
  box.User_Text(text);
}

void Memory_User::Key_In_Text_Box(toolkit::Text_Box& box, const Typed_Key& key) {
  if (!key.Text.empty()) return box.User_Character(key.Text);
  if (key.Key.Code >= toolkit::key_f1 || key.Key.Code == toolkit::key_escape) return;
  const std::string& text = box.Text;
  const auto start = static_cast<std::size_t>(box.SelStart());
  const auto end = start + static_cast<std::size_t>(box.SelLength());
  std::size_t caret = 0;
  switch (key.Key.Code) {
    case toolkit::key_left: caret = start - (start == 0 ? 0 : text.substr(0, start).ends_with("\r\n") ? 2 : 1); break;
    case toolkit::key_right: caret = std::min(end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1), text.size()); break;
    case toolkit::key_home: caret = Line_Start(text, start); break;
    case toolkit::key_end: caret = Line_End(text, end); break;
    default: throw std::logic_error("a key that the in-memory text box doesn't know");
  }
  box.SelStart.Keep(static_cast<int>(caret));
  box.SelLength.Keep(0);
}

}  // namespace memory
