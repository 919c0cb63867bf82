// Captions where the style of the system has no colour that goes with their ground.
#include "tests/win32/window_on_screen.h"
#include "toolkit/check_box.h"
#include "toolkit/frame.h"
#include "win32/themes.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0);

class Own_Colour : public Window_On_Screen {
 protected:
  Own_Colour() {
    Box.Caption = "MMMMMM";
    Box.FontBold = true;
    Box.Place({150, 150, 3000, 375});
    Window.ForeColor = static_cast<toolkit::Colour>(red);
    Show();
  }

  /// How many of the control's pixels have a colour, as it paints itself.
  static int Count(HWND control, COLORREF colour) {
    RECT client = {};
    GetClientRect(control, &client);
    const HDC context = GetDC(control);
    int count = 0;
    for (int y = 0; y < client.bottom; ++y)
      for (int x = 0; x < client.right; ++x) count += GetPixel(context, x, y) == colour ? 1 : 0;
    ReleaseDC(control, context);
    return count;
  }

  toolkit::Check_Box Box{Window, "Startup_Chk"};
};

}  // namespace

TEST_F(Own_Colour, The_caption_of_a_frame_is_the_systems_where_the_styles_cant_be_read) {
  constexpr COLORREF none = 0x123456;
  win32::Themes themes;
  const COLORREF of_style = themes.Text_Colour({4, 1}, none);
  ASSERT_NE(of_style, none) << "no style is in use";
  constexpr int button_text = COLOR_BTNTEXT;
  const COLORREF before = GetSysColor(button_text), now = RGB(0, 255, 0);
  SetSysColors(1, &button_text, &now);
  toolkit::Frame frame(Window, "Frame1");
  frame.Caption = "MMMMMM";
  frame.Place({150, 900, 3000, 1500});
  Window.BackColor = static_cast<toolkit::Colour>(of_style);
  Wait(50);
  const int in_own_colour = Count(Handle(), now);
  SetSysColors(1, &button_text, &before);
  EXPECT_GT(in_own_colour, 20);
}

TEST_F(Own_Colour, The_caption_of_a_check_box_without_the_style_has_the_forms_colour) {
  const HWND control = Child("Button");
  win32::Themes themes;
  themes.Leave_Out(control, true);
  RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  Wait(50);
  const int without = Count(control, red);
  themes.Leave_Out(control, false);
  EXPECT_GT(without, 20);
}
