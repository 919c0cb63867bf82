#include "win32/native_control.h"

#include "toolkit/form.h"

namespace win32 {

Native_Control::Native_Control(HWND parent, toolkit::Control& control, Window_Context& context)
    : parent_(parent), control_(control), context_(context), tip_(context.Common_Controls),
      accessible_(*this, context.Accessibility) {}

// The window itself is destroyed with its parent. Until then it is the system's own control again.
Native_Control::~Native_Control() {
  if (procedure_ == nullptr) return;
  SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure_));
  SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
}

void Native_Control::Make(const Kind& kind, const std::string& text) {
  const DWORD shown = control_.On_View() ? WS_VISIBLE : 0;
  const DWORD enabled = control_.Usable() ? 0 : WS_DISABLED;
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(parent_, GWLP_HINSTANCE));
  place_ = Native_Control::Wanted_Place();
  context_.Common_Controls.Start();
  window_ = Made(CreateWindowExA(kind.Extended, kind.Class, text.c_str(), WS_CHILD | kind.Style | shown | enabled,
                                 place_.left, place_.top, place_.right - place_.left, place_.bottom - place_.top,
                                 parent_, nullptr, instance, nullptr));
  SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  procedure_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Native_Control::Procedure)));
}

LRESULT CALLBACK Native_Control::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<Native_Control*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcA(window, message, w, l);
  const WNDPROC procedure = self->procedure_;
  bool taken = false;
  LRESULT result = 0;
  self->context_.Guard.Run([&] {
    if (message == WM_SETFOCUS) self->control_.Window.System().Input.Focus_Came(self->control_);
    if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) self->Follow_Tip(message, w, l);
    if (message == WM_GETOBJECT) taken = self->accessible_.Answer(w, l, result);
    else taken = self->Intercept(message, w, l);
  });
  return taken ? result : CallWindowProcA(procedure, window, message, w, l);
}

void Native_Control::Follow_Tip(UINT message, WPARAM w, LPARAM l) {
  if (control_.ToolTipText().empty()) {
    tip_.Remove();
    return;
  }
  RECT client;
  GetClientRect(window_, &client);
  tip_.Watch(window_, client, control_.ToolTipText());
  tip_.Relay(window_, message, w, l);
}

void Native_Control::Changed(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Bounds: Show_Place(); break;
    case Visible: ShowWindow(window_, control_.On_View() ? SW_SHOWNA : SW_HIDE); break;
    case Enabled: EnableWindow(window_, control_.Usable()); break;
    default: Show(aspect); break;
  }
}

RECT Native_Control::Wanted_Place() const { return context_.Scale.Pixels(control_.In_Window()); }

void Native_Control::Show_Place() {
  const RECT place = Wanted_Place();
  if (EqualRect(&place, &place_) != 0) return;
  place_ = place;
  MoveWindow(window_, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

Face& Native_Control::Font_Of(const toolkit::Font_Properties& font) const {
  return context_.Fonts.Get({font.FontName, font.FontSize, font.FontBold, font.FontItalic, font.FontUnderline});
}

void Native_Control::Show_Font(const toolkit::Font_Properties& font) {
  SendMessageA(window_, WM_SETFONT, reinterpret_cast<WPARAM>(Font_Of(font).Handle.Get()), TRUE);
}

void Native_Control::Show_Text(const std::string& text) { SetWindowTextA(window_, text.c_str()); }

void Native_Control::Forward_To_Form(UINT message, WPARAM w, LPARAM l) const {
  POINT at = {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))};
  MapWindowPoints(window_, parent_, &at, 1);
  SendMessageA(parent_, message, w, MAKELPARAM(at.x, at.y));
}

}  // namespace win32
