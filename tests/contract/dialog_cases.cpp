// What the toolkit relies on of a dialog: focus, keys, and the controls that are the system's own.
#include "tests/contract/window_world.h"

namespace {

class Dialog_Cases : public Window_Cases {
 protected:
  Dialog_Cases() {
    Dialog.Move(7500, 1500);
    Dialog.Set_Client_Size(4500, 2700);
    Text.Place({150, 150, 3000, 900});
    Every.Place({150, 1200, 1500, 300});
    Every.Caption = "Every year";
    Ok.Place({150, 1650, 1200, 330});
    Ok.Caption = "&OK";
    Close.Place({1500, 1650, 1200, 330});
    Close.Caption = "Cancel";
    Ok.Default = true;
    Close.Cancel = true;
    Ok.On_Click = [this] { Log += "ok "; };
    Close.On_Click = [this] { Log += "close "; };
    Every.On_Click = [this] { Log += "every" + std::to_string(Every.Value()) + " "; };
    Show(Dialog);
    Take();
  }

  std::string Focus() { return Dialog.Focused() == nullptr ? "none" : Dialog.Focused()->Name; }

  Form Dialog{Backend, "Edit_Frm", Form_Border::Fixed_Dialog};
  toolkit::Text_Box Text{Dialog, "Text"};
  toolkit::Check_Box Every{Dialog, "Every"};
  toolkit::Command_Button Ok{Dialog, "Ok"}, Close{Dialog, "Close"};
};

}  // namespace

TEST_F(Dialog_Cases, Tab_moves_the_focus_and_the_text_is_typed_where_it_is) {
  EXPECT_EQ(Focus(), "Text");
  User.Type('a');
  User.Type('b');
  EXPECT_EQ(Text.Text(), "ab");
  User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Every");
  User.Type('c');
  EXPECT_EQ(Text.Text(), "ab");
  for (int i = 0; i < 3; ++i) User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Text");
  User.Type('d');
  EXPECT_EQ(Text.Text(), "d") << "Tab has selected the whole text";
}

TEST_F(Dialog_Cases, Keys_press_the_buttons) {
  User.Press_Key(Pressed_Key::Enter);
  EXPECT_EQ(Take(), "ok ");
  User.Press_Key(Pressed_Key::Escape);
  EXPECT_EQ(Take(), "close ");
  User.Press_Key(Pressed_Key::Tab);
  User.Press_Key(Pressed_Key::Space);
  EXPECT_EQ(Take(), "every1 ");
  User.Press_Key(Pressed_Key::Tab);
  User.Press_Key(Pressed_Key::Tab);
  EXPECT_EQ(Focus(), "Close");
  User.Press_Key(Pressed_Key::Enter);
  User.Press_Key(Pressed_Key::Space);
  EXPECT_EQ(Take(), "close close ");
  User.Press_Key(Pressed_Key::Alt_O);
  EXPECT_EQ(Take(), "ok ");
  EXPECT_EQ(Focus(), "Ok");
}

TEST_F(Dialog_Cases, Enter_makes_a_new_line_where_no_button_takes_it) {
  Ok.Default = false;
  User.Type('a');
  User.Press_Key(Pressed_Key::Enter);
  User.Type('b');
  EXPECT_EQ(Text.Text(), "a\r\nb");
  EXPECT_EQ(Take(), "");
}

TEST_F(Dialog_Cases, A_click_gives_the_focus_and_does_what_the_control_is_for) {
  User.Click(Dialog, &Every);
  EXPECT_EQ(Focus(), "Every");
  EXPECT_EQ(Take(), "every1 ");
  User.Click(Dialog, &Close);
  EXPECT_EQ(Focus(), "Close");
  EXPECT_EQ(Take(), "close ");
  User.Click(Dialog, &Text);
  EXPECT_EQ(Focus(), "Text");
  User.Type('a');
  EXPECT_EQ(Text.Text(), "a");
}

TEST_F(Dialog_Cases, A_button_that_is_left_before_the_release_is_not_clicked) {
  User.Press(Dialog, &Ok, Mouse_Button::Left);
  EXPECT_TRUE(Ok.Held());
  User.Move(Dialog, &Close);
  EXPECT_FALSE(Ok.Held());
  User.Release(Dialog, &Close, Mouse_Button::Left);
  EXPECT_EQ(Take(), "");
}

TEST_F(Dialog_Cases, A_disabled_button_takes_no_click_and_gives_the_focus_on) {
  User.Click(Dialog, &Ok);
  Take();
  World->Run([&] { Ok.Enabled = false; });
  EXPECT_EQ(Focus(), "Close");
  User.Press_Key(Pressed_Key::Enter);
  EXPECT_EQ(Take(), "close ");
}

TEST_F(Dialog_Cases, The_focus_comes_back_with_the_activity_and_a_focused_control_brings_it) {
  User.Press_Key(Pressed_Key::Tab);
  User.Click(Main.Window, &Main.A);
  EXPECT_TRUE(Active(Main.Window));
  World->Run([&] { Dialog.Set_Focus(Text); });
  User.Wait(100);
  EXPECT_TRUE(Active(Dialog));
  User.Type('a');
  EXPECT_EQ(Text.Text(), "a");
  User.Click(Main.Window, &Main.A);
  World->Run([&] { Dialog.Show(); });
  User.Wait(100);
  User.Type('b');
  EXPECT_EQ(Text.Text(), "ab");
}

TEST_F(Dialog_Cases, The_user_is_told_when_the_text_changes_and_the_program_hears_its_own_changes_once) {
  int changes = 0;
  Text.On_Change = [&] { ++changes; };
  World->Run([&] { Text.Text = "by the program"; });
  EXPECT_EQ(changes, 1);
  User.Type('a');
  EXPECT_EQ(changes, 2);
}
