// The tip beside a slider's thumb: there while it is dragged, with the text that the program gives it on the way.
#include "tests/win32/native_parts.h"
#include "tests/win32/window_on_screen.h"
#include "toolkit/slider.h"

namespace {

class Drag_Tips : public Window_On_Screen {
 protected:
  Drag_Tips() {
    Months.Place({150, 150, 4500, 600});
    Show();
  }

  void Point_At(POINT at) {
    for (int tries = 0; tries < 10; ++tries) {
      SetCursorPos(at.x, at.y);
      Wait(20);
    }
  }
  void Drag_To(int value) {
    const HWND slider = Child("msctls_trackbar32");
    Point_At(Middle_Of_Thumb(slider));
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    Wait(50);
    Point_At(Place_On_Slider(slider, value));
  }
  void Let_Go() {
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Wait(50);
  }

  toolkit::Slider Months{Window, "Months", 1, 12, toolkit::Slide::Across};
};

}  // namespace

TEST_F(Drag_Tips, Without_a_text_there_is_none) {
  Drag_To(5);
  EXPECT_EQ(Shown_Tip(), nullptr);
  Let_Go();
}

TEST_F(Drag_Tips, It_is_there_from_the_first_step_to_the_release_and_is_as_wide_as_its_text) {
  Months.On_Scroll = [this] { Months.Text = std::string(Months.Value() == 5 ? 40 : 1, 'w'); };
  Drag_To(4);
  const HWND tip = Shown_Tip();
  ASSERT_NE(tip, nullptr);
  RECT narrow = {}, wide = {};
  GetWindowRect(tip, &narrow);
  Point_At(Place_On_Slider(Child("msctls_trackbar32"), 5));
  GetWindowRect(tip, &wide);
  EXPECT_EQ(Months.Value(), 5);
  EXPECT_GT(wide.right - wide.left, narrow.right - narrow.left + 100);
  Let_Go();
  EXPECT_EQ(Shown_Tip(), nullptr);
}
