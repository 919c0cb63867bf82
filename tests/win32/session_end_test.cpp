// The end of the user's session: every window agrees at once, also while a box is open.
#include "tests/win32/window_on_screen.h"

namespace {

BOOL CALLBACK Ask(HWND window, LPARAM refusals) {
  DWORD_PTR agreed = 0;
  SendMessageTimeoutA(window, WM_QUERYENDSESSION, 0, 0, SMTO_ABORTIFHUNG, 500, &agreed);
  if (agreed == 0) ++*reinterpret_cast<int*>(refusals);
  return TRUE;
}

/// How many windows of the program refuse.
int Refusals() {
  int refusals = 0;
  EnumThreadWindows(GetCurrentThreadId(), Ask, reinterpret_cast<LPARAM>(&refusals));
  return refusals;
}

int refused_under_box = -1;

void CALLBACK Ask_And_Answer(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND box = FindWindowA("#32770", "Meridex");
  if (box == nullptr) return;
  KillTimer(nullptr, timer);
  refused_under_box = Refusals();
  PostMessageA(box, WM_COMMAND, IDOK, 0);
}

}  // namespace

using Session_End = Window_On_Screen;

TEST_F(Session_End, All_windows_agree_at_once) {
  Show();
  EXPECT_EQ(Refusals(), 0);
}

TEST_F(Session_End, They_agree_while_a_box_is_open) {
  Show();
  SetTimer(nullptr, 0, 50, Ask_And_Answer);
  Platform.System().Message_Box.Show("Meridex", "Dentist", platform::Box_Icon::None, platform::Box_Buttons::OK);
  EXPECT_EQ(refused_under_box, 0);
}
