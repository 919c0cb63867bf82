// The keys of a drop-down list that belong to the system: those that open it, and all while it is open.
#include "tests/win32/window_on_screen.h"
#include "toolkit/command_button.h"
#include "toolkit/item_list.h"

namespace {

class Drop_Down : public Window_On_Screen {
 protected:
  Drop_Down() {
    Box.Place({150, 150, 2400, 315});
    for (const char* const item : {"Red", "Green", "Blue"}) Box.Add_Item(item);
    Box.Select(0);
    Ok.Default = true;
    Close.Cancel = true;
    Box.On_Click = [this] { Log += Box.Text() + " "; };
    Ok.On_Click = [this] { Log += "ok "; };
    Close.On_Click = [this] { Log += "close "; };
    Show();
    Window.Set_Focus(Box);
    Wait(100);
  }

  void Key(BYTE code, BYTE with = 0) {
    if (with != 0) keybd_event(with, 0x38, 0, 0);
    keybd_event(code, static_cast<BYTE>(MapVirtualKeyA(code, 0)), 0, 0);
    keybd_event(code, static_cast<BYTE>(MapVirtualKeyA(code, 0)), KEYEVENTF_KEYUP, 0);
    if (with != 0) keybd_event(with, 0x38, KEYEVENTF_KEYUP, 0);
    Wait(100);
  }

  [[nodiscard]] bool Open() const { return SendMessageA(Child("ComboBox"), CB_GETDROPPEDSTATE, 0, 0) != 0; }
  std::string Take() { return std::exchange(Log, {}); }

  toolkit::Combo_Box Box{Window, "Box"};
  toolkit::Command_Button Ok{Window, "Ok"}, Close{Window, "Close"};
  std::string Log;
};

}  // namespace

TEST_F(Drop_Down, F4_and_Alt_with_Down_open_it_and_close_it) {
  Key(VK_F4);
  EXPECT_TRUE(Open());
  Key(VK_F4);
  EXPECT_FALSE(Open());
  Key(VK_DOWN, VK_MENU);
  EXPECT_TRUE(Open());
}

TEST_F(Drop_Down, What_is_gone_over_is_picked_by_Enter_which_presses_no_button) {
  Key(VK_F4);
  Key(VK_DOWN);
  Key(VK_DOWN);
  EXPECT_EQ(Take(), "");
  Key(VK_RETURN);
  EXPECT_FALSE(Open());
  EXPECT_EQ(Take(), "Blue ");
  Key(VK_RETURN);
  EXPECT_EQ(Take(), "ok ");
}

TEST_F(Drop_Down, Escape_leaves_everything_as_it_was_and_presses_no_button) {
  Key(VK_F4);
  Key(VK_DOWN);
  Key(VK_ESCAPE);
  EXPECT_FALSE(Open());
  EXPECT_EQ(Take(), "");
  EXPECT_EQ(Box.Text(), "Red");
  EXPECT_EQ(SendMessageA(Child("ComboBox"), CB_GETCURSEL, 0, 0), 0);
  Key(VK_ESCAPE);
  EXPECT_EQ(Take(), "close ");
}
