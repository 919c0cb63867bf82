#include "win32/native_buttons.h"

#include "toolkit/form.h"
#include "win32/button_face.h"

namespace win32 {

bool Native_Button::Intercept(UINT message, WPARAM w, LPARAM l) {
  // Colours and style change one after the other, in either order.
  if (on_ground_ && (message == WM_SYSCOLORCHANGE || message == style_changed)) Follow_Contrast();
  if (message < WM_MOUSEFIRST || message > WM_MBUTTONDBLCLK) return false;
  // **The form may unload by this: touch no member after it.**
  Forward_To_Form(message, w, l);
  return message != WM_MOUSEMOVE;  // with a move the system paints the button under the pointer
}

void Native_Button::Stand_On_Ground() {
  on_ground_ = true;
  Follow_Contrast();
}

/// A visual style writes a caption in a colour of its own, whatever the form's is. Where that can't be read on the
/// form's ground, as with colours of high contrast, the form's is taken.
void Native_Button::Follow_Contrast() {
  constexpr Themes::Look check_box = {3, 1};
  const toolkit::Form& form = Control().Window;
  const COLORREF colour = Context().Themes.Text_Colour(check_box, To_Colour(form.ForeColor));
  const bool without = !Readable(colour, To_Colour(form.BackColor));
  if (without == without_style_) return;
  without_style_ = without;
  Context().Themes.Leave_Out(Window(), without);
}

void Native_Button::Show_Held(bool held) { SendMessageA(Window(), BM_SETSTATE, held, 0); }

DWORD Native_Button::Lines(const toolkit::Font_Properties& font) const {
  constexpr int any_width = 1000;
  const RECT place = Wanted_Place();
  const bool room = place.bottom - place.top >= 2 * Context().Fonts.Height(Font_Of(font), "X", any_width);
  return room ? BS_MULTILINE : 0;
}

Native_Push_Button::Native_Push_Button(HWND parent, toolkit::Command_Button& button, Window_Context& context)
    : Native_Button(parent, button, context), button_(button) {
  Make({"BUTTON", Style() | Lines(button), 0}, button.Caption);
  Show_Font(button);
}

bool Native_Push_Button::Default() const { return button_.Window.Enter_Button() == &button_; }

DWORD Native_Push_Button::Style() const {
  if (button_.Picture() != platform::Stock_Picture::None) return BS_OWNERDRAW;
  return Default() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void Native_Push_Button::Draw(const DRAWITEMSTRUCT& item) {
  const Button_Face face{button_.Picture, button_.Caption, Default(), To_Colour(button_.Window.BackColor)};
  const Drawing_Tools tools{Context().Fonts, Context().Pictures, Context().Themes};
  Draw_Button(item, face, Font_Of(button_), tools);
}

void Native_Push_Button::Show(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Caption: Show_Text(button_.Caption); break;
    case Appearance: Show_Font(button_); [[fallthrough]];
    case Default_Button: SendMessageA(Window(), BM_SETSTYLE, Style() | Lines(button_), TRUE); break;
    case Held: Show_Held(button_.Held); break;
    default: break;
  }
}

Native_Check_Box::Native_Check_Box(HWND parent, toolkit::Check_Box& box, Window_Context& context)
    : Native_Button(parent, box, context), box_(box) {
  Make({"BUTTON", BS_CHECKBOX | Lines(box), 0}, box.Caption);
  Stand_On_Ground();
  Show_Font(box);
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

Native_Option_Button::Native_Option_Button(HWND parent, toolkit::Option_Button& option, Window_Context& context)
    : Native_Button(parent, option, context), option_(option) {
  Make({"BUTTON", BS_RADIOBUTTON | Lines(option), 0}, option.Caption);
  Stand_On_Ground();
  Show_Font(option);
  Show_Dot();
}

void Native_Option_Button::Show_Dot() { SendMessageA(Window(), BM_SETCHECK, option_.Value(), 0); }

void Native_Option_Button::Show(toolkit::Aspect aspect) {
  using enum toolkit::Aspect;
  switch (aspect) {
    case Caption: Show_Text(option_.Caption); break;
    case Appearance: Show_Font(option_); break;
    case Value: Show_Dot(); break;
    case Held: Show_Held(option_.Held); break;
    default: break;
  }
}

}  // namespace win32
