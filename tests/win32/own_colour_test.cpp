// The captions of check boxes where the style of the system is left out.
#include "tests/win32/window_on_screen.h"
#include "toolkit/check_box.h"
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
