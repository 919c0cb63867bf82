// Captions where the style of the system has no colour that goes with their ground.
#include <map>
#include <utility>

#include "tests/win32/played_function.h"
#include "tests/win32/window_on_screen.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/frame.h"
#include "toolkit/option_button.h"
#include "win32/graphics.h"
#include "win32/system_library.h"
#include "win32/themes.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0), black = RGB(0, 0, 0), white = RGB(255, 255, 255);
constexpr toolkit::Colour dark = toolkit::Rgb(20, 20, 30);

/// Colours of high contrast, which the user turns on and off. They are the system's own again at the end.
class High_Contrast {
 public:
  High_Contrast() = default;
  High_Contrast(const High_Contrast&) = delete;
  High_Contrast& operator=(const High_Contrast&) = delete;
  ~High_Contrast() { Set(Before); }

  void Turn(bool on) { Set(on ? std::array{black, white} : Before); }

 private:
  static constexpr std::array kinds{COLOR_BTNFACE, COLOR_BTNTEXT};
  static void Set(const std::array<COLORREF, 2>& colours) { SetSysColors(2, kinds.data(), colours.data()); }

  const std::array<COLORREF, 2> Before{GetSysColor(kinds[0]), GetSysColor(kinds[1])};
};

/// What the program has told of the style of each control: true is without it.
std::map<HWND, std::vector<bool>> told;

HRESULT WINAPI Tell_Black(HANDLE, int, int, int, COLORREF* colour) {
  *colour = black;
  return S_OK;
}

HRESULT WINAPI Note_Style(HWND control, const wchar_t* name, const wchar_t*) {
  told[control].push_back(name != nullptr && *name == L'\0');
  return S_OK;
}

/// A style that writes all captions in black. Not every system's has a colour for them.
class Black_Style {
 public:
  Black_Style() { told.clear(); }

 private:
  win32::Library_Owner library_ = win32::System_Library("uxtheme.dll");
  Played_Function colour_{library_.Get(), "GetThemeColor", &Tell_Black};
  Played_Function style_{library_.Get(), "SetWindowTheme", &Note_Style};
};

/// The system tells its top-level windows.
void Tell_All(UINT message) { SendMessageA(FindWindowA("Meridex_Broadcasts", nullptr), message, 0, 0); }

class Own_Colour : public Window_On_Screen {
 protected:
  Own_Colour() {
    Box.Caption = "MMMMMM";
    Box.FontBold = true;
    Box.Place({150, 150, 3000, 375});
    Option.Caption = "MMMMMM";
    Option.FontBold = true;
    Option.Place({150, 600, 3000, 375});
    Button.Place({150, 3600, 1500, 375});
    Window.ForeColor = static_cast<toolkit::Colour>(red);
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

  [[nodiscard]] HWND Native(const toolkit::Control& control) const {
    return win32::To_Window(Window.Handle_Of(control));
  }
  /// The check box and the option.
  [[nodiscard]] std::array<HWND, 2> On_Ground() const { return {Native(Box), Native(Option)}; }

  /// What both have been told since the last look.
  void Expect_Told(const std::vector<bool>& expected) const {
    for (const HWND control : On_Ground()) EXPECT_EQ(std::exchange(told[control], {}), expected);
    EXPECT_EQ(told.count(Native(Button)), 0U) << "a push button has a ground of its own";
  }

  toolkit::Check_Box Box{Window, "Startup_Chk"};
  toolkit::Option_Button Option{Window, "Tips_Opt"};
  toolkit::Command_Button Button{Window, "OK_Btn"};
};

}  // namespace

TEST_F(Own_Colour, The_caption_of_a_frame_is_the_systems_where_the_styles_cant_be_read) {
  Show();
  constexpr COLORREF none = 0x123456;
  win32::Themes themes;
  const COLORREF of_style = themes.Text_Colour({4, 1}, none);
  ASSERT_NE(of_style, none) << "no style is in use";
  constexpr int button_text = COLOR_BTNTEXT;
  const COLORREF before = GetSysColor(button_text), now = RGB(0, 255, 0);
  SetSysColors(1, &button_text, &now);
  toolkit::Frame frame(Window, "Frame1");
  frame.Caption = "MMMMMM";
  frame.Place({150, 1500, 3000, 1500});
  Window.BackColor = static_cast<toolkit::Colour>(of_style);
  Wait(50);
  const int in_own_colour = Count(Handle(), now);
  SetSysColors(1, &button_text, &before);
  EXPECT_GT(in_own_colour, 20);
}

TEST_F(Own_Colour, Check_boxes_and_options_stand_on_the_forms_ground_in_its_colour) {
  const toolkit::Colour ground = toolkit::Rgb(255, 250, 200);
  Window.BackColor = ground;
  Show();
  for (const HWND control : On_Ground()) {
    EXPECT_GT(Count(control, win32::To_Colour(ground)), 2000);
    EXPECT_GT(Count(control, red), 20);
  }
}

TEST_F(Own_Colour, Captions_that_the_style_would_hide_are_without_it_from_the_first) {
  const Black_Style style;
  Window.BackColor = dark;
  Show();
  Expect_Told({true});
}

TEST_F(Own_Colour, Captions_that_can_be_read_have_the_style) {
  const Black_Style style;
  Show();
  Tell_All(WM_SYSCOLORCHANGE);
  Expect_Told({});
}

TEST_F(Own_Colour, Colours_of_high_contrast_are_followed_when_they_come_and_when_they_go) {
  const Black_Style style;
  High_Contrast scheme;
  Show();
  for (int times = 0; times < 2; ++times) {
    scheme.Turn(true);
    Wait(50);
    Expect_Told({true});
    Tell_All(win32::style_changed);
    Expect_Told({});
    scheme.Turn(false);
    Wait(50);
    Expect_Told({false});
  }
}

TEST_F(Own_Colour, A_change_of_colours_and_one_of_style_are_followed_each_by_itself) {
  const Black_Style style;
  Show();
  const toolkit::Colour before = Window.BackColor;
  for (const UINT message : {static_cast<UINT>(WM_SYSCOLORCHANGE), win32::style_changed}) {
    Window.BackColor = dark;
    Tell_All(message);
    Expect_Told({true});
    Window.BackColor = before;
    Tell_All(message);
    Expect_Told({false});
  }
}

TEST_F(Own_Colour, The_caption_of_a_check_box_without_the_style_has_the_forms_colour) {
  Show();
  const HWND control = Native(Box);
  win32::Themes themes;
  themes.Leave_Out(control, true);
  RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  Wait(50);
  const int without = Count(control, red);
  themes.Leave_Out(control, false);
  EXPECT_GT(without, 20);
}
