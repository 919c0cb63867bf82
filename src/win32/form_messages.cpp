// What the system tells a window, decoded into the input functions of its form.
#include "win32/form_window.h"

namespace win32 {

namespace {

constexpr UINT check_tip = WM_APP;  // tips or places have changed under a pointer that may be at rest
constexpr UINT lost_activity = WM_APP + 1;

using toolkit::Mouse_Button;

int Bit(Mouse_Button button) { return static_cast<int>(button); }

Mouse_Button Held_Button(WPARAM keys) {
  if ((keys & MK_LBUTTON) != 0) return Mouse_Button::Left;
  if ((keys & MK_RBUTTON) != 0) return Mouse_Button::Right;
  return (keys & MK_MBUTTON) != 0 ? Mouse_Button::Middle : Mouse_Button::None;
}

POINT Point_Of(LPARAM l) { return {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))}; }

}  // namespace

LRESULT CALLBACK Form_Window::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<Form_Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcA(window, message, w, l);
  LRESULT result = 0;
  bool done = false;
  const bool whole = self->context_.Guard.Run([&] { done = self->Message(message, w, l, result); });
  // A program that is ending lets nobody close its windows but itself.
  if (done || (!whole && message == WM_CLOSE)) return result;
  return DefWindowProcA(window, message, w, l);
}

bool Form_Window::Message(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) return Mouse_Message(message, w, l);
  switch (message) {
    case WM_PAINT: Paint(); return true;
    case WM_ERASEBKGND: result = 1; return true;
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_SYSKEYDOWN: return Key_Message(message, w);
    case WM_COMMAND:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case DM_GETDEFID: return Child_Message(message, w, l, result);
    case WM_SETCURSOR: return Set_Pointer(w, l);
    case WM_CAPTURECHANGED: Capture_Changed(reinterpret_cast<HWND>(l)); return true;
    case WM_ACTIVATE: return Active_Changed(LOWORD(w) != WA_INACTIVE);
    case WM_WINDOWPOSCHANGED: Place_Changed(*reinterpret_cast<const WINDOWPOS*>(l)); return false;
    case WM_SYSCOLORCHANGE: Repaint_All(); return false;
    case WM_CLOSE: form_.Close_Requested(); return true;
    case check_tip: {
      tip_check_posted_ = false;
      POINT at;
      if (GetCursorPos(&at) != 0 && WindowFromPoint(at) == Window() && ScreenToClient(Window(), &at) != 0)
        Follow_Tip(at);
      else tip_.Remove();
      return true;
    }
    case lost_activity: form_.Deactivated(); return true;
    default: return false;
  }
}

bool Form_Window::Mouse_Message(UINT message, WPARAM w, LPARAM l) {
  const POINT at = Point_Of(l);
  if (message == WM_MOUSEMOVE) Follow_Tip(at);
  tip_.Relay(Window(), message, w, l);
  const double x = at.x * context_.Scale.X, y = at.y * context_.Scale.Y;
  switch (message) {
    case WM_MOUSEMOVE: form_.Mouse_Move(Held_Button(w), x, y); return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: return Press(Mouse_Button::Left, message == WM_LBUTTONDBLCLK, x, y);
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK: return Press(Mouse_Button::Right, message == WM_RBUTTONDBLCLK, x, y);
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK: return Press(Mouse_Button::Middle, message == WM_MBUTTONDBLCLK, x, y);
    case WM_LBUTTONUP: return Release(Mouse_Button::Left, x, y);
    case WM_RBUTTONUP: return Release(Mouse_Button::Right, x, y);
    case WM_MBUTTONUP: return Release(Mouse_Button::Middle, x, y);
    default: return false;
  }
}

bool Form_Window::Press(Mouse_Button button, bool twice, double x, double y) {
  pressed_ |= Bit(button);
  SetCapture(Window());
  // Below another program's window a press makes that one active, unless it is told otherwise.
  if (GetActiveWindow() != Window()) SetActiveWindow(Window());
  if (children_.Empty() && GetFocus() != Window()) SetFocus(Window());
  if (twice) form_.Double_Click(button, x, y);
  else form_.Mouse_Down(button, x, y);
  return true;
}

bool Form_Window::Release(Mouse_Button button, double x, double y) {
  // A press that was made elsewhere, or that a menu took, isn't released here.
  if ((pressed_ & Bit(button)) == 0) return true;
  pressed_ &= ~Bit(button);
  if (pressed_ == 0) ReleaseCapture();
  form_.Mouse_Up(button, x, y);
  return true;
}

void Form_Window::Capture_Changed(HWND to) {
  if (pressed_ == 0 || to == Window()) return;
  pressed_ = 0;
  form_.Mouse_Lost();
}

bool Form_Window::Key_Message(UINT message, WPARAM w) {
  if (message != WM_KEYUP && w != VK_F10) return false;
  // F10 is a key like the others: the system would look for a menu bar.
  if (message != WM_SYSKEYDOWN) form_.Key_Up(static_cast<int>(w));
  return true;
}

bool Form_Window::Child_Message(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  if (message == WM_COMMAND) {
    children_.Command(reinterpret_cast<HWND>(l), HIWORD(w));
    return true;
  }
  if (message == DM_GETDEFID) {
    result = children_.Default_Id();
    return true;
  }
  result = children_.Ground(reinterpret_cast<HDC>(w), To_Colour(form_.BackColor));
  return true;
}

bool Form_Window::Active_Changed(bool active) {
  if (!active) {
    children_.Remember_Focus(Window());
    // The handler may unload the window, which must not go while the system is changing the active one.
    PostMessageA(Window(), lost_activity, 0, 0);
    return false;
  }
  const bool placed = children_.Restore_Focus();
  if (!placed) SetFocus(Window());
  form_.Activated();
  return true;
}

/// A place that the user gave the window is the form's; one that the form gave it is kept to the fraction of a pixel.
void Form_Window::Place_Changed(const WINDOWPOS& place) {
  if ((place.flags & SWP_NOMOVE) != 0 || IsIconic(Window()) != 0) return;
  if (place.x == place_.left && place.y == place_.top) return;
  OffsetRect(&place_, place.x - place_.left, place.y - place_.top);
  form_.Left.Keep(place.x * context_.Scale.X);
  form_.Top.Keep(place.y * context_.Scale.Y);
}

bool Form_Window::Set_Pointer(WPARAM over, LPARAM part) const {
  constexpr int four_arrows = 5;
  if (reinterpret_cast<HWND>(over) != Window() || LOWORD(part) != HTCLIENT) return false;
  SetCursor(LoadCursorA(nullptr, form_.MousePointer == four_arrows ? IDC_SIZEALL : IDC_ARROW));
  return true;
}

void Form_Window::Tips_Changed() {
  if (!tip_.Watching() || tip_check_posted_) return;
  tip_check_posted_ = PostMessageA(Window(), check_tip, 0, 0) != 0;
}

void Form_Window::Follow_Tip(POINT at) {
  const toolkit::Control* const control =
      form_.Control_At((at.x + 0.5) * context_.Scale.X, (at.y + 0.5) * context_.Scale.Y);
  if (control == nullptr || control->ToolTipText().empty()) tip_.Remove();
  else tip_.Watch(Window(), context_.Scale.Pixels(control->In_Twips()), control->ToolTipText());
}

bool Form_Window::Take_Key(MSG& message) {
  if (children_.Empty()) return false;
  if (message.message == WM_KEYDOWN) {
    const HWND focus = GetFocus();
    switch (message.wParam) {
      case VK_RETURN: return children_.Press_Button(focus) || form_.Enter_Pressed();
      case VK_ESCAPE: return form_.Escape_Pressed();
      case VK_TAB: return children_.Next(Window(), GetKeyState(VK_SHIFT) < 0);
      default: break;
    }
  }
  return IsDialogMessageA(Window(), &message) != 0;
}

}  // namespace win32
