// Keys of a calendar that lies in the shell's window: the shell's own menu must not hear of them.
#include "tests/win32/window_on_screen.h"

namespace {

int menu_calls = 0;

LRESULT CALLBACK Shell_Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message != WM_SYSCOMMAND || (w & 0xFFF0) != SC_KEYMENU) return DefWindowProcA(window, message, w, l);
  ++menu_calls;
  return 0;
}

class Embedded_Keys : public Window_On_Screen {
 protected:
  Embedded_Keys() {
    WNDCLASSA description = {};
    description.lpfnWndProc = Shell_Procedure;
    description.lpszClassName = "Test_Shell";
    RegisterClassA(&description);
    shell_ =
        CreateWindowExA(0, "Test_Shell", "", WS_POPUP | WS_VISIBLE, 0, 0, 600, 600, nullptr, nullptr, nullptr, nullptr);
    Calendar.Show();
    Platform.System().Shell.Set_Parent(Calendar.Handle(), win32::To_Handle(shell_));
    menu_calls = 0;
  }
  ~Embedded_Keys() override {
    Calendar.Unload();
    DestroyWindow(shell_);
  }

  /// Presses a key and lets it go, with Alt held unless it is Alt itself.
  void Press_With_Alt(WPARAM key) {
    constexpr LPARAM alt_held = 1 << 29;
    const HWND calendar = win32::To_Window(Calendar.Handle());
    PostMessageA(calendar, WM_SYSKEYDOWN, key, alt_held);
    PostMessageA(calendar, WM_SYSKEYUP, key, 0);
    Wait(50);
  }

  toolkit::Form Calendar{Backend, "Main_Frm", toolkit::Form_Border::None};

 private:
  HWND shell_ = nullptr;
};

}  // namespace

TEST_F(Embedded_Keys, A_released_Alt_doesnt_open_the_shells_menu) {
  Press_With_Alt(VK_MENU);
  EXPECT_EQ(menu_calls, 0);
}

TEST_F(Embedded_Keys, F10_doesnt_open_the_shells_menu) {
  Press_With_Alt(VK_F10);
  EXPECT_EQ(menu_calls, 0);
}
