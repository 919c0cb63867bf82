#include "win32/native_text_box.h"

#include "toolkit/form.h"

namespace win32 {

Native_Text_Box::Native_Text_Box(HWND parent, toolkit::Text_Box& box, Window_Context& context)
    : Native_Control(parent, box, context), box_(box) {
  Make({"EDIT", WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, WS_EX_CLIENTEDGE}, box.Text);
  Show_Font(box);
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
