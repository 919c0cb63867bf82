// A change of the system's colours or of its style reaches all that a window shows, and each of its controls once.
#include <map>

#include "tests/win32/window_on_screen.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/item_list.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"
#include "win32/handle.h"
#include "win32/themes.h"

namespace {

constexpr UINT changes[] = {WM_SYSCOLORCHANGE, win32::style_changed};

/// How often each window has heard of a change.
std::map<HWND, int> heard;

LRESULT CALLBACK Counts_Changes(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_SYSCOLORCHANGE || message == win32::style_changed) ++heard[window];
  return CallWindowProcA(reinterpret_cast<WNDPROC>(GetPropA(window, "before")), window, message, w, l);
}

/// The system tells its top-level windows.
void Tell_All(UINT message) { SendMessageA(FindWindowA("Meridex_Broadcasts", nullptr), message, 0, 0); }

class Look_Changed : public Window_On_Screen {
 protected:
  Look_Changed() {
    Box.Place({150, 150, 1500, 300});
    Button.Place({150, 600, 1500, 375});
    Text.Place({150, 1200, 1500, 600});
    List.Place({150, 2000, 1500, 900});
    Slider.Place({2100, 150, 2000, 480});
    Tabs.Place({2100, 1200, 3000, 1500});
    Show();
    heard.clear();
  }
  ~Look_Changed() override { Window.Unload(); }

  [[nodiscard]] std::vector<HWND> Controls() const {
    std::vector<HWND> controls;
    for (const toolkit::Control* const control : Window.Controls())
      controls.push_back(win32::To_Window(Window.Handle_Of(*control)));
    return controls;
  }

  void Count_From_Here() {
    for (const HWND control : Controls()) {
      SetPropA(control, "before", reinterpret_cast<HANDLE>(GetWindowLongPtrA(control, GWLP_WNDPROC)));
      SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Counts_Changes));
    }
  }

  void Expect_All_Heard(int times) {
    for (const HWND control : Controls()) {
      char name[64] = "";
      GetClassNameA(control, name, sizeof name);
      EXPECT_EQ(heard[control], times) << name;
    }
  }

  /// Whether the system has been told to paint the whole window; nothing of it is to be painted any more then.
  [[nodiscard]] bool Is_To_Be_Painted_Whole() const {
    RECT marked = {}, client = {};
    GetClientRect(Handle(), &client);
    const bool whole = GetUpdateRect(Handle(), &marked, FALSE) != 0 && EqualRect(&marked, &client) != 0;
    ValidateRect(Handle(), nullptr);
    return whole;
  }

  toolkit::Check_Box Box{Window, "Box"};
  toolkit::Command_Button Button{Window, "Button"};
  toolkit::Text_Box Text{Window, "Text"};
  toolkit::List_Box List{Window, "List"};
  toolkit::Slider Slider{Window, "Slider", 0, 9, toolkit::Slide::Across};
  toolkit::Tab_Strip Tabs{Window, "Tabs", {"One", "Two"}};
};

}  // namespace

TEST_F(Look_Changed, Each_control_of_the_systems_hears_of_a_change_once) {
  Count_From_Here();
  for (const UINT change : changes) {
    heard.clear();
    Tell_All(change);
    Expect_All_Heard(1);
  }
}

TEST_F(Look_Changed, So_it_does_where_the_window_itself_is_told_too) {
  constexpr int menu = COLOR_MENU;
  const COLORREF before = GetSysColor(menu), now = RGB(20, 40, 60);
  Count_From_Here();
  SetSysColors(1, &menu, &now);
  Wait(50);
  Expect_All_Heard(1);
  SetSysColors(1, &menu, &before);
}

TEST_F(Look_Changed, The_whole_window_is_painted_anew) {
  for (const UINT change : changes) {
    UpdateWindow(Handle());
    ASSERT_FALSE(Is_To_Be_Painted_Whole());
    Tell_All(change);
    EXPECT_TRUE(Is_To_Be_Painted_Whole()) << change;
  }
}

TEST_F(Look_Changed, Every_window_is_told_also_one_in_the_shells_window) {
  const win32::Window_Owner shell(
      CreateWindowExA(0, "Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr, nullptr, nullptr));
  ASSERT_EQ(Platform.System().Shell.Set_Parent(Window.Handle(), win32::To_Handle(shell.Get())),
            platform::Adoption::Done);
  toolkit::Form other(Backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog);
  other.Set_Client_Size(3000, 1500);
  other.Show();
  Wait(50);
  UpdateWindow(Handle());
  ASSERT_FALSE(Is_To_Be_Painted_Whole());
  Count_From_Here();
  Tell_All(WM_SYSCOLORCHANGE);
  Expect_All_Heard(1);
  EXPECT_TRUE(Is_To_Be_Painted_Whole());
  EXPECT_NE(GetUpdateRect(win32::To_Window(other.Handle()), nullptr, FALSE), 0);
  other.Unload();
  Window.Unload();
}
