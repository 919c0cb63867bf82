// The library of the system's controls is there before the first message box or control, and not before it is
// needed. In a program of its own: nothing else may have loaded the library.
#include <map>

#include "tests/win32/window_on_screen.h"
#include "toolkit/command_button.h"
#include "toolkit/label.h"
#include "toolkit/text_box.h"

namespace {

bool Loaded() { return GetModuleHandleA("comctl32.dll") != nullptr; }

/// For the class of each window that was made: whether the library was there by then.
std::map<std::string, bool> loaded_before;

LRESULT CALLBACK Note_Window(int code, WPARAM w, LPARAM l) {
  if (code == HCBT_CREATEWND) {
    char name[64] = "";
    GetClassNameA(reinterpret_cast<HWND>(w), name, sizeof name);
    loaded_before.emplace(name, Loaded());
  }
  return CallNextHookEx(nullptr, code, w, l);
}

/// Answers the box that is open.
void CALLBACK Answer(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND box = FindWindowA("#32770", "Meridex");
  if (box == nullptr) return;
  KillTimer(nullptr, timer);
  PostMessageA(box, WM_COMMAND, IDOK, 0);
}

class First_Box : public Window_On_Screen {
 protected:
  void SetUp() override {
    ASSERT_FALSE(Loaded());
    loaded_before.clear();
    SetTimer(nullptr, 0, 50, Answer);
  }
  ~First_Box() override { UnhookWindowsHookEx(hook_); }

  static void Expect_Loaded_Before(const std::string& window_class) {
    ASSERT_TRUE(loaded_before.contains(window_class)) << "no window of that class was made";
    EXPECT_TRUE(loaded_before[window_class]);
  }

 private:
  HHOOK hook_ = SetWindowsHookExA(WH_CBT, Note_Window, nullptr, GetCurrentThreadId());
};

}  // namespace

TEST_F(First_Box, A_window_of_labels_does_without_the_library_and_a_box_has_it) {
  toolkit::Label label(Window, "Label1");
  label.Caption = "Dentist";
  Show();
  EXPECT_FALSE(Loaded());
  Platform.System().Message_Box.Show("Meridex", "Dentist", platform::Box_Icon::None, platform::Box_Buttons::OK);
  Expect_Loaded_Before("#32770");
}

TEST_F(First_Box, The_report_of_a_failure_has_the_library) {
  EXPECT_EQ(Platform.Run([] { throw std::bad_alloc(); }), win32::Win32_Platform::End::Failure);
  Expect_Loaded_Before("#32770");
}

TEST_F(First_Box, A_button_has_the_library) {
  toolkit::Command_Button button(Window, "Command1");
  Show();
  Expect_Loaded_Before("Button");
  Window.Unload();
}

TEST_F(First_Box, A_text_box_has_the_library) {
  toolkit::Text_Box text(Window, "Text1");
  Show();
  Expect_Loaded_Before("Edit");
  Window.Unload();
}
