#include "win32/native_control.h"

#include "toolkit/form.h"
#include "win32/native_kinds.h"

namespace win32 {

Native_Control::Native_Control(HWND parent, toolkit::Control& control, Window_Context& context)
    : parent_(parent), control_(control), context_(context), place_(context.Scale.Pixels(control.In_Twips())) {}

// The window itself is destroyed with its parent. Until then it is the system's own control again.
Native_Control::~Native_Control() {
  if (procedure_ == nullptr) return;
  SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure_));
  SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
}

void Native_Control::Make(const Kind& kind, const std::string& text, const toolkit::Font_Properties& font) {
  const DWORD shown = control_.Visible ? WS_VISIBLE : 0;
  const DWORD enabled = control_.Enabled ? 0 : WS_DISABLED;
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(parent_, GWLP_HINSTANCE));
  window_ = CreateWindowExA(kind.Extended, kind.Class, text.c_str(), WS_CHILD | kind.Style | shown | enabled,
                            place_.left, place_.top, place_.right - place_.left, place_.bottom - place_.top, parent_,
                            nullptr, instance, nullptr);
  SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  procedure_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Native_Control::Procedure)));
  Show_Font(font);
}

LRESULT CALLBACK Native_Control::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<Native_Control*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcA(window, message, w, l);
  const WNDPROC procedure = self->procedure_;
  bool taken = false;
  self->context_.Guard.Run([&] {
    if (message == WM_SETFOCUS) self->control_.Window.System().Input.Focus_Came(self->control_);
    taken = self->Intercept(message, w, l);
  });
  return taken ? 0 : CallWindowProcA(procedure, window, message, w, l);
}

void Native_Control::Changed(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Bounds: Show_Place(); break;
    case Visible: ShowWindow(window_, control_.Visible ? SW_SHOWNA : SW_HIDE); break;
    case Enabled: EnableWindow(window_, control_.Enabled); break;
    default: Show(aspect); break;
  }
}

void Native_Control::Show_Place() {
  const RECT place = context_.Scale.Pixels(control_.In_Twips());
  if (EqualRect(&place, &place_) != 0) return;
  place_ = place;
  MoveWindow(window_, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

void Native_Control::Show_Font(const toolkit::Font_Properties& font) {
  const toolkit::Font description{font.FontName, font.FontSize, font.FontBold, font.FontItalic, font.FontUnderline};
  const HFONT handle = context_.Fonts.Get(description).Handle.Get();
  SendMessageA(window_, WM_SETFONT, reinterpret_cast<WPARAM>(handle), TRUE);
}

void Native_Control::Show_Text(const std::string& text) { SetWindowTextA(window_, text.c_str()); }

void Native_Control::Forward_To_Form(UINT message, WPARAM w, LPARAM l) const {
  POINT at = {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))};
  MapWindowPoints(window_, parent_, &at, 1);
  SendMessageA(parent_, message, w, MAKELPARAM(at.x, at.y));
}

std::unique_ptr<Native_Control> Make_Native_Control(HWND parent, toolkit::Control& control, Window_Context& context) {
  if (auto* const text = dynamic_cast<toolkit::Text_Box*>(&control))
    return std::make_unique<Native_Text_Box>(parent, *text, context);
  if (auto* const check = dynamic_cast<toolkit::Check_Box*>(&control))
    return std::make_unique<Native_Check_Box>(parent, *check, context);
  if (auto* const button = dynamic_cast<toolkit::Command_Button*>(&control))
    return std::make_unique<Native_Push_Button>(parent, *button, context);
  return nullptr;
}

}  // namespace win32
