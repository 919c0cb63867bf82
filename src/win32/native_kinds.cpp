#include "win32/native_kinds.h"

#include "toolkit/form.h"

namespace win32 {

bool Native_Button::Intercept(UINT message, WPARAM w, LPARAM l) {
  if (message < WM_MOUSEFIRST || message > WM_MBUTTONDBLCLK) return false;
  // **The form may unload by this: touch no member after it.**
  Forward_To_Form(message, w, l);
  return message != WM_MOUSEMOVE;  // with a move the system paints the button under the pointer
}

void Native_Button::Show_Held(bool held) { SendMessageA(Window(), BM_SETSTATE, held, 0); }

Native_Push_Button::Native_Push_Button(HWND parent, toolkit::Command_Button& button, Window_Context& context)
    : Native_Button(parent, button, context), button_(button) {
  Make({"BUTTON", Style(), 0}, button.Caption, button);
}

DWORD Native_Push_Button::Style() const {
  return button_.Window.Enter_Button() == &button_ ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void Native_Push_Button::Show(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Caption: Show_Text(button_.Caption); break;
    case Appearance: Show_Font(button_); break;
    case Default_Button: SendMessageA(Window(), BM_SETSTYLE, Style(), TRUE); break;
    case Held: Show_Held(button_.Held); break;
    default: break;
  }
}

Native_Check_Box::Native_Check_Box(HWND parent, toolkit::Check_Box& box, Window_Context& context)
    : Native_Button(parent, box, context), box_(box) {
  Make({"BUTTON", BS_CHECKBOX, 0}, box.Caption, box);
  Show_Tick();
}

void Native_Check_Box::Show_Tick() { SendMessageA(Window(), BM_SETCHECK, box_.Value == 1, 0); }

void Native_Check_Box::Show(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Caption: Show_Text(box_.Caption); break;
    case Appearance: Show_Font(box_); break;
    case Value: Show_Tick(); break;
    case Held: Show_Held(box_.Held); break;
    default: break;
  }
}

Native_Text_Box::Native_Text_Box(HWND parent, toolkit::Text_Box& box, Window_Context& context)
    : Native_Control(parent, box, context), box_(box) {
  Make({"EDIT", WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, WS_EX_CLIENTEDGE}, box.Text, box);
  SendMessageA(Window(), EM_LIMITTEXT, 0, 0);  // as much as the system can
}

void Native_Text_Box::Show(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Caption:
      being_set_ = true;
      Show_Text(box_.Text);
      being_set_ = false;
      break;
    case Appearance: Show_Font(box_); break;
    case Selection: Show_Selection(); break;
    default: break;
  }
}

void Native_Text_Box::Show_Selection() {
  const int start = box_.SelStart;
  SendMessageA(Window(), EM_SETSEL, static_cast<WPARAM>(start), start + box_.SelLength);
}

void Native_Text_Box::Command(WORD code) {
  if (code != EN_CHANGE || being_set_) return;
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(Window())), '\0');
  const int length = GetWindowTextA(Window(), text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  box_.User_Text(std::move(text));
}

}  // namespace win32
