// A tip's window is of a kind that the library of the system's controls makes known. Each tip asks for that itself: not
// every system knows the kind by then.
#include <gtest/gtest.h>

#include "tests/win32/played_function.h"
#include "win32/drag_tip.h"
#include "win32/system_library.h"
#include "win32/tip_window.h"

namespace {

int starts = 0;

void WINAPI Count_Start() { ++starts; }

class Tip_Library : public ::testing::Test {
 protected:
  Tip_Library() { starts = 0; }

  win32::Library_Owner Library = win32::System_Library("comctl32.dll");
  const Played_Function Start{Library.Get(), "InitCommonControls", &Count_Start};
  win32::Common_Controls Controls;
  win32::Window_Owner Owner{
      CreateWindowExA(0, "Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr)};
};

}  // namespace

TEST_F(Tip_Library, Is_started_by_the_first_tip_of_a_window_once) {
  win32::Tip_Window tip(Controls);
  EXPECT_EQ(starts, 0);
  tip.Watch(Owner.Get(), {0, 0, 100, 50}, "Dentist");
  EXPECT_EQ(starts, 1);
  tip.Watch(Owner.Get(), {0, 50, 100, 100}, "Choir");
  EXPECT_EQ(starts, 1);
  tip.Forget();
}

TEST_F(Tip_Library, Is_started_by_the_first_tip_of_a_drag_once) {
  win32::Drag_Tip tip(Controls);
  EXPECT_EQ(starts, 0);
  tip.Show(Owner.Get(), {10, 10}, "Month 6!");
  tip.Show(Owner.Get(), {20, 10}, "Month 7!");
  EXPECT_EQ(starts, 1);
}
