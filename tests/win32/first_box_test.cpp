// The library of the system's controls is there before the first message box, and not before it is needed. In a program
// of its own: nothing else may have loaded the library.
#include "tests/win32/window_on_screen.h"
#include "toolkit/label.h"

namespace {

bool Loaded() { return GetModuleHandleA("comctl32.dll") != nullptr; }

bool loaded_under_box = false;

/// Answers the box that is open.
void CALLBACK Answer(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND box = FindWindowA("#32770", "Meridex");
  if (box == nullptr) return;
  KillTimer(nullptr, timer);
  loaded_under_box = Loaded();
  PostMessageA(box, WM_COMMAND, IDOK, 0);
}

class First_Box : public Window_On_Screen {
 protected:
  void SetUp() override {
    loaded_under_box = false;
    ASSERT_FALSE(Loaded());
    SetTimer(nullptr, 0, 50, Answer);
  }
};

}  // namespace

TEST_F(First_Box, A_window_of_labels_does_without_the_library_and_a_box_has_it) {
  toolkit::Label label(Window, "Label1");
  label.Caption = "Dentist";
  Show();
  EXPECT_FALSE(Loaded());
  Platform.System().Message_Box.Show("Meridex", "Dentist", platform::Box_Icon::None, platform::Box_Buttons::OK);
  EXPECT_TRUE(loaded_under_box);
}

TEST_F(First_Box, The_report_of_a_failure_has_the_library) {
  EXPECT_EQ(Platform.Run([] { throw std::bad_alloc(); }), win32::Win32_Platform::End::Failure);
  EXPECT_TRUE(loaded_under_box);
}
