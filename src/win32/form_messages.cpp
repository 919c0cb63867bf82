// Decodes the system's messages to a window into calls of its form's input.
#include <algorithm>

#include "toolkit/input.h"
#include "win32/form_window.h"
#include "win32/graphics.h"

namespace win32 {

namespace {

constexpr UINT check_tip = WM_APP;  // tips or places have changed under a pointer that may be at rest
constexpr UINT tell_of_activity = WM_APP + 1;

using toolkit::Mouse_Button;

Mouse_Button Held_Button(WPARAM keys) {
  if ((keys & MK_LBUTTON) != 0) return Mouse_Button::Left;
  if ((keys & MK_RBUTTON) != 0) return Mouse_Button::Right;
  return (keys & MK_MBUTTON) != 0 ? Mouse_Button::Middle : Mouse_Button::None;
}

/// Whether Shift, Ctrl or Alt is held.
bool With_Shift(WPARAM keys) { return (keys & (MK_SHIFT | MK_CONTROL)) != 0 || GetKeyState(VK_MENU) < 0; }

POINT Point_Of(LPARAM l) { return {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))}; }

}  // namespace

LRESULT CALLBACK Form_Window::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<Form_Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcA(window, message, w, l);
  LRESULT result = 0;
  bool done = false;
  const bool whole = self->context_.Guard.Run([&] { done = self->Message(message, w, l, result); });
  // A program that is ending closes its windows itself.
  if (done || (!whole && message == WM_CLOSE)) return result;
  return DefWindowProcA(window, message, w, l);
}

bool Form_Window::Message(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) return Mouse_Message(message, w, l);
  switch (message) {
    case WM_PAINT: surface_.Paint(); return true;
    case WM_ERASEBKGND: result = 1; return Erase(reinterpret_cast<HDC>(w));
    case WM_PRINTCLIENT: return Erase(reinterpret_cast<HDC>(w));
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: return Child_Message(message, w, l, result);
    case WM_SETCURSOR: result = 1; return Set_Pointer(reinterpret_cast<HWND>(w), LOWORD(l));
    case WM_CAPTURECHANGED: Capture_Changed(reinterpret_cast<HWND>(l)); return true;
    case WM_ACTIVATE: return Active_Changed(LOWORD(w) != WA_INACTIVE);
    case WM_WINDOWPOSCHANGED: Place_Changed(*reinterpret_cast<const WINDOWPOS*>(l)); return false;
    case WM_GETOBJECT: return accessible_.Answer(w, l, result);
    case reader_wishes: accessible_.Do(w, l); return true;
    case WM_CLOSE:
      if (!context_.Work.Put_Off_Close(Window())) form_.Close_Requested();
      return true;
    case check_tip: {
      tip_check_posted_ = false;
      POINT at;
      if (GetCursorPos(&at) != 0 && WindowFromPoint(at) == Window() && ScreenToClient(Window(), &at) != 0)
        Follow_Tip(at);
      else tip_.Remove();
      return true;
    }
    case tell_of_activity: form_.System().Input.Tell_Of_Activity(); return true;
    default: return false;
  }
}

bool Form_Window::Mouse_Message(UINT message, WPARAM w, LPARAM l) {
  const POINT at = Point_Of(l);
  POINT on_screen = at;
  ClientToScreen(Window(), &on_screen);
  const bool moved = on_screen.x != context_.Pointer.x || on_screen.y != context_.Pointer.y;
  context_.Pointer = on_screen;
  if (message == WM_MOUSEMOVE) Follow_Tip(at);
  tip_.Relay(Window(), message, w, l);
  toolkit::Control* const control = Control_At(form_, context_.Scale, at);
  toolkit::Input& input = form_.System().Input;
  toolkit::Mouse_Event event{Mouse_Button::Left, at.x * context_.Scale.X, at.y * context_.Scale.Y, With_Shift(w)};
  if (message == WM_RBUTTONDOWN || message == WM_RBUTTONUP || message == WM_RBUTTONDBLCLK)
    event.Button = Mouse_Button::Right;
  if (message == WM_MBUTTONDOWN || message == WM_MBUTTONUP || message == WM_MBUTTONDBLCLK)
    event.Button = Mouse_Button::Middle;
  switch (message) {
    case WM_MOUSEMOVE:
      event.Button = Held_Button(w);
      if (moved) input.Move(form_, Under(on_screen, control), event);
      return true;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN: input.Press(form_, control, event); return true;
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK: input.Press_Twice(form_, control, event); return true;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP: input.Release(form_, Under(on_screen, control), event); return true;
    default: return false;
  }
}

/// What of this window the pointer is over; while the mouse is held that may be nothing.
std::optional<toolkit::Control*> Form_Window::Under(POINT on_screen, toolkit::Control* control) const {
  if (form_.System().Input.Mouse_Window() != &form_) return control;
  const HWND seen = WindowFromPoint(on_screen);
  if (seen != Window() && IsChild(Window(), seen) == 0) return std::nullopt;
  return control;
}

void Form_Window::Capture_Changed(HWND to) {
  toolkit::Input& input = form_.System().Input;
  if (to != Window() && input.Mouse_Window() == &form_) input.Mouse_Lost();
}

bool Form_Window::Child_Message(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  const auto sent_by = [this](HWND window) { return Native(window); };
  switch (message) {
    case WM_COMMAND:
      if (Native_Control* const sender = sent_by(reinterpret_cast<HWND>(l))) sender->Command(HIWORD(w));
      return true;
    case WM_HSCROLL:
    case WM_VSCROLL:
      if (Native_Control* const sender = sent_by(reinterpret_cast<HWND>(l))) sender->Scrolled(LOWORD(w));
      return true;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(l);
      Native_Control* const sender = sent_by(header.hwndFrom);
      if (sender != nullptr) sender->Notified(header.code);
      return sender != nullptr;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
      if (Native_Control* const sender = sent_by(item.hwndItem)) sender->Draw(item);
      result = 1;
      return true;
    }
    default:
      result = reinterpret_cast<LRESULT>(Ground());
      SetBkColor(reinterpret_cast<HDC>(w), ground_colour_);
      SetTextColor(reinterpret_cast<HDC>(w), To_Colour(form_.ForeColor));
      return true;
  }
}

/// The brush behind a native control, which shows its form's ground.
HBRUSH Form_Window::Ground() {
  const COLORREF colour = To_Colour(form_.BackColor);
  if (!ground_ || colour != ground_colour_) {
    ground_.Reset(CreateSolidBrush(colour));
    ground_colour_ = colour;
  }
  return ground_.Get();
}

/// The painting covers the whole window; a native control that asks for what lies behind it gets the ground.
bool Form_Window::Erase(HDC context) {
  if (WindowFromDC(context) == Window()) return true;
  RECT client;
  GetClientRect(Window(), &client);
  FillRect(context, &client, Ground());
  return true;
}

// The newer kinds of controls hear of colours by their parents alone.
void Form_Window::Look_Changed(UINT message) {
  surface_.Repaint_All();
  for (const auto& native : natives_) SendMessageA(native->Window(), message, 0, 0);
}

/// Posted, since the form's handler may unload it, which must not happen while the system is changing the active window.
void Form_Window::Tell_Of_Activity_Later() { PostMessageA(Window(), tell_of_activity, 0, 0); }

bool Form_Window::Active_Changed(bool active) {
  toolkit::Input& input = form_.System().Input;
  Tell_Of_Activity_Later();
  if (active) {
    context_.Active = this;
    input.Activity_Came(form_);
    return true;
  }
  if (context_.Active == this) context_.Active = nullptr;
  input.Activity_Went(form_);
  return false;
}

/// A place that the user chose is written to the form. A place that the form set stays there, with its fraction of a
/// pixel.
void Form_Window::Place_Changed(const WINDOWPOS& place) {
  if ((place.flags & SWP_NOMOVE) != 0 || in_between_ || IsIconic(Window()) != 0) return;
  // Asked for, since the message counts in a parent's pixels, of one written from right to left from the other side.
  RECT now = {};
  GetWindowRect(Window(), &now);
  if (now.left == place_.left && now.top == place_.top) return;
  OffsetRect(&place_, now.left - place_.left, now.top - place_.top);
  form_.Left.Keep(now.left * context_.Scale.X);
  form_.Top.Keep(now.top * context_.Scale.Y);
}

/// That of a control, or of the window where the control has none or there is no control.
toolkit::Pointer Form_Window::Pointer_Over(const toolkit::Control* control) const {
  const bool own = control != nullptr && control->MousePointer() != toolkit::Pointer::Default;
  return own ? control->MousePointer() : form_.MousePointer();
}

/// Returns false where the window under the pointer has a shape of its own.
bool Form_Window::Set_Pointer(HWND over, WORD part) const {
  if (context_.Pointers.Busy()) {
    context_.Pointers.Show(toolkit::Pointer::Hourglass);
    return true;
  }
  POINT at;
  if (part != HTCLIENT || GetCursorPos(&at) == 0 || ScreenToClient(Window(), &at) == 0) return false;
  const toolkit::Pointer pointer = Pointer_Over(Control_At(form_, context_.Scale, at));
  if (over != Window() && pointer == toolkit::Pointer::Default) return false;
  context_.Pointers.Show(pointer);
  return true;
}

/// The pointer of the form, or of the control, has changed: it is shown at once where it is over that. While the mouse
/// is held the pointer is that of what changes it.
void Form_Window::Show_Pointer(const toolkit::Control* changed) const {
  if (context_.Pointers.Busy()) return;
  if (changed != nullptr && GetCapture() == Window()) return context_.Pointers.Show(Pointer_Over(changed));
  POINT at;
  if (GetCursorPos(&at) == 0) return;
  const HWND under = WindowFromPoint(at);
  if (under == Window() || IsChild(Window(), under) != 0 || GetCapture() == Window()) Set_Pointer(Window(), HTCLIENT);
}

void Form_Window::Tips_Changed() {
  if (!tip_.Watching() || tip_check_posted_) return;
  tip_check_posted_ = PostMessageA(Window(), check_tip, 0, 0) != 0;
}

void Form_Window::Follow_Tip(POINT at) {
  const toolkit::Control* const control = Control_At(form_, context_.Scale, at);
  // A native control has a tip of its own.
  if (control == nullptr || control->ToolTipText().empty() || Native(*control) != nullptr) tip_.Remove();
  else tip_.Watch(Window(), context_.Scale.Pixels(control->In_Window()), control->ToolTipText());
}

bool Form_Window::Take_Key(const MSG& message) {
  toolkit::Input& input = form_.System().Input;
  const int code = static_cast<int>(message.wParam);
  const toolkit::Key key{code, GetKeyState(VK_SHIFT) < 0, GetKeyState(VK_CONTROL) < 0, GetKeyState(VK_MENU) < 0};
  // F10 is used up here like any other key: the system would look for a menu bar. So is Alt where the window has no
  // menu of its own: inside the shell's window the system would take that one's.
  const bool menu_key = code == VK_F10 || (code == VK_MENU && form_.Border == toolkit::Form_Border::None);
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      // The system hides the marks of focus and accelerators until the keys are used.
      if (code == VK_TAB || (code >= VK_PRIOR && code <= VK_DOWN))
        SendMessageA(Window(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
      if (const Native_Control* const native = Native(message.hwnd); native != nullptr && native->Keeps_Keys())
        if (code != VK_TAB) return false;
      return input.Key_Down(form_, key) || code == VK_F10;
    case WM_SYSCHAR: return input.Accelerator(form_, static_cast<char>(code));
    case WM_KEYUP:
    case WM_SYSKEYUP: input.Key_Up(form_, key); return menu_key;
    default: return false;
  }
}

}  // namespace win32
