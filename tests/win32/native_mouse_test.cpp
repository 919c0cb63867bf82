// What the system's own controls do with the mouse by themselves: tips and double-clicks.
#include "tests/win32/native_parts.h"
#include "tests/win32/window_on_screen.h"
#include "toolkit/command_button.h"
#include "toolkit/item_list.h"

namespace {

class Native_Mouse : public Window_On_Screen {
 protected:
  Native_Mouse() {
    Button.Place({150, 150, 1500, 375});
    List.Place({150, 900, 2400, 1800});
    for (const char* const item : {"Ant", "Bee", "Cat"}) List.Add_Item(item);
    List.On_Click = [this] { Log += "click" + std::to_string(List.ListIndex()) + " "; };
    List.On_Double_Click = [this] { Log += "twice" + std::to_string(List.ListIndex()) + " "; };
    Show();
  }

  void Point_At(POINT on_screen) {
    for (int tries = 0; tries < 10; ++tries) {
      SetCursorPos(on_screen.x, on_screen.y);
      Wait(20);
    }
  }
  void Point_Into(HWND window) {
    POINT at = {20, 10};
    ClientToScreen(window, &at);
    Point_At({at.x - 3, at.y});
    Point_At(at);
  }
  void Click() {
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Wait(50);
  }

  toolkit::Command_Button Button{Window, "Button"};
  toolkit::List_Box List{Window, "List"};
  std::string Log;
};

}  // namespace

TEST_F(Native_Mouse, A_control_shows_its_tip_when_the_pointer_rests_on_it) {
  Button.ToolTipText = "What it does";
  Point_Into(Child("Button"));
  Wait(1500);
  EXPECT_NE(Shown_Tip(), nullptr);
  Point_Into(Child("ListBox"));
  Wait(1500);
  EXPECT_EQ(Shown_Tip(), nullptr) << "the list has none";
}

TEST_F(Native_Mouse, Two_clicks_on_an_item_are_a_double_click) {
  Point_At(Middle_Of_Item(Child("ListBox"), 1));
  Click();
  EXPECT_EQ(Log, "click1 ");
  Click();
  EXPECT_EQ(Log.substr(0, 14), "click1 twice1 ");
  Log.clear();
  List.Enabled = false;
  Wait(600);
  Click();
  Click();
  EXPECT_EQ(Log, "");
}
