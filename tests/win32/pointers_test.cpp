// The shape of the pointer over controls and windows, and while the program is busy.
#include "tests/win32/window_on_screen.h"
#include "toolkit/command_button.h"
#include "toolkit/label.h"

namespace {

class Pointers : public Window_On_Screen {
 protected:
  Pointers() {
    Link.Place({150, 150, 1500, 600});
    Button.Place({150, 1500, 1500, 600});
    Show();
  }

  void Point_At(int x, int y) {
    POINT at = {x, y};
    ClientToScreen(Handle(), &at);
    for (int tries = 0; tries < 20; ++tries) {
      SetCursorPos(at.x, at.y);
      Wait(20);
    }
  }
  void Point_At_Link() { Point_At(50, 30); }
  void Point_At_Button() { Point_At(50, 120); }
  void Point_At_Ground() { Point_At(250, 250); }

  static HCURSOR Shape(const char* name) { return LoadCursorA(nullptr, name); }

  toolkit::Label Link{Window, "Link"};
  toolkit::Command_Button Button{Window, "Button"};
};

}  // namespace

TEST_F(Pointers, A_control_has_its_own_and_the_window_has_its_own_elsewhere) {
  Link.MousePointer = toolkit::Pointer::Hand;
  Point_At_Link();
  EXPECT_EQ(GetCursor(), Shape(IDC_HAND));
  Point_At_Ground();
  EXPECT_EQ(GetCursor(), Shape(IDC_ARROW));
  Window.MousePointer = toolkit::Pointer::Four_Arrows;
  EXPECT_EQ(GetCursor(), Shape(IDC_SIZEALL)) << "at once";
  Point_At_Link();
  EXPECT_EQ(GetCursor(), Shape(IDC_HAND));
  Point_At_Button();
  EXPECT_EQ(GetCursor(), Shape(IDC_SIZEALL)) << "over the system's own controls too";
}

TEST_F(Pointers, A_change_is_seen_under_a_pointer_at_rest) {
  Point_At_Link();
  EXPECT_EQ(GetCursor(), Shape(IDC_ARROW));
  Link.MousePointer = toolkit::Pointer::Hourglass;
  EXPECT_EQ(GetCursor(), Shape(IDC_WAIT));
  Link.MousePointer = toolkit::Pointer::Default;
  EXPECT_EQ(GetCursor(), Shape(IDC_ARROW));
}

TEST_F(Pointers, A_busy_program_shows_the_hourglass_everywhere) {
  Link.MousePointer = toolkit::Pointer::Hand;
  Point_At_Link();
  Backend.Show_Busy(true);
  EXPECT_EQ(GetCursor(), Shape(IDC_WAIT));
  Point_At_Ground();
  EXPECT_EQ(GetCursor(), Shape(IDC_WAIT));
  Point_At_Link();
  EXPECT_EQ(GetCursor(), Shape(IDC_WAIT));
  Backend.Show_Busy(false);
  EXPECT_EQ(GetCursor(), Shape(IDC_HAND));
}
