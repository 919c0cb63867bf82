// The one road of input in a dialog: focus, keys, and controls that are held and clicked.
#include "tests/toolkit/input_world.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"

using toolkit::Check_Box;
using toolkit::Command_Button;
using toolkit::Text_Box;

namespace {

class Dialog_Test : public Input_Test {
 protected:
  Dialog_Test() {
    Head.Caption = "&Head";
    Every.Caption = "Every &year";
    Ok.Caption = "&OK && more";
    Close.Caption = "Close && go";
    Ok.On_Click = [this] { Heard.emplace_back("ok"); };
    Close.On_Click = [this] { Heard.emplace_back("close"); };
    Every.On_Click = [this] { Heard.emplace_back("every " + std::to_string(Every.Value())); };
    Text.Text = "abc";
    In.Activity_Came(Window);
    Backend.Take();
  }

  std::string Focus() { return Window.Focused() == nullptr ? "none" : Window.Focused()->Name; }

  Label Head{Window, "Head_Lbl"};
  Text_Box Text{Window, "Text_Txt"};
  Check_Box Every{Window, "Every_Chk"};
  Command_Button Ok{Window, "Ok_Btn"}, Close{Window, "Close_Btn"};
};

}  // namespace

TEST_F(Dialog_Test, The_first_control_that_takes_the_focus_has_it_at_the_beginning) { EXPECT_EQ(Focus(), "Text_Txt"); }

TEST_F(Dialog_Test, The_focus_comes_back_with_the_activity) {
  Window.Set_Focus(Ok);
  Form other(Backend, "Tip");
  other.Show(false);
  other.Activate();
  Backend.Take();
  Window.Activate();
  EXPECT_EQ(Backend.Take(), (Words{"activate Main_Frm", "focus Ok_Btn"}));
}

TEST_F(Dialog_Test, To_focus_a_control_of_a_visible_window_makes_it_active) {
  Form other(Backend, "Tip");
  other.Show(false);
  other.Activate();
  int told = 0;
  Window.On_Activate = [&] { ++told; };
  Window.Set_Focus(Every);
  EXPECT_EQ(Backend.Active, &Window);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(Focus(), "Every_Chk");
  other.Activate();
  Window.Hide();
  Window.Set_Focus(Ok);
  EXPECT_EQ(Backend.Active, &other) << "a hidden one only keeps it for later";
  EXPECT_EQ(Focus(), "Ok_Btn");
}

TEST_F(Dialog_Test, Tab_goes_round_the_controls_that_can_have_the_focus) {
  Ok.Enabled = false;
  Words way;
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(Key_Down(toolkit::key_tab));
    way.push_back(Focus());
  }
  EXPECT_EQ(way, (Words{"Every_Chk", "Close_Btn", "Text_Txt", "Every_Chk"}));
  In.Key_Down(Window, {toolkit::key_tab, true});
  In.Key_Down(Window, {toolkit::key_tab, true});
  EXPECT_EQ(Focus(), "Close_Btn");
  EXPECT_FALSE(In.Key_Down(Window, {toolkit::key_tab, false, false, true})) << "Alt+Tab is the system's";
  EXPECT_FALSE(In.Key_Down(Window, {toolkit::key_tab, false, true, false}));
}

TEST_F(Dialog_Test, Tab_selects_the_whole_text_of_a_box_and_a_press_does_not) {
  Text.SelStart = 1;
  In.Key_Down(Window, {toolkit::key_tab});
  In.Key_Down(Window, {toolkit::key_tab, true});
  EXPECT_EQ(Text.SelStart(), 0);
  EXPECT_EQ(Text.SelLength(), 3);
  Text.SelLength = 1;
  Window.Set_Focus(Ok);
  Press(&Text, Left(0, 0));
  EXPECT_EQ(Focus(), "Text_Txt");
  EXPECT_EQ(Text.SelLength(), 1);
}

TEST_F(Dialog_Test, Enter_presses_the_button_that_has_the_focus_else_the_default_one) {
  EXPECT_FALSE(Key_Down(toolkit::key_enter));
  Ok.Default = true;
  EXPECT_TRUE(Key_Down(toolkit::key_enter));
  Window.Set_Focus(Close);
  EXPECT_TRUE(Key_Down(toolkit::key_enter));
  Window.Set_Focus(Every);
  EXPECT_TRUE(Key_Down(toolkit::key_enter));
  EXPECT_EQ(Take(), (Words{"ok", "close", "ok"}));
}

TEST_F(Dialog_Test, Enter_with_ctrl_is_left_to_the_text) {
  Ok.Default = true;
  EXPECT_FALSE(In.Key_Down(Window, {toolkit::key_enter, false, true, false}));
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Dialog_Test, The_look_of_the_default_button_follows_the_focus) {
  Ok.Default = true;
  Backend.Take();
  Window.Set_Focus(Close);
  EXPECT_EQ(Backend.Take(), (Words{"Close_Btn default button", "Ok_Btn default button", "focus Close_Btn"}));
  EXPECT_EQ(Window.Enter_Button(), &Close);
}

TEST_F(Dialog_Test, Escape_presses_the_cancel_button_whatever_has_the_focus) {
  EXPECT_FALSE(Key_Down(toolkit::key_escape));
  Close.Cancel = true;
  Window.Set_Focus(Ok);
  EXPECT_TRUE(Key_Down(toolkit::key_escape));
  EXPECT_EQ(Take(), Words{"close"});
}

TEST_F(Dialog_Test, A_disabled_or_hidden_default_button_uses_the_key_up_all_the_same) {
  Ok.Default = true;
  Ok.Enabled = false;
  EXPECT_TRUE(Key_Down(toolkit::key_enter));
  Ok.Enabled = true;
  Ok.Visible = false;
  EXPECT_TRUE(Key_Down(toolkit::key_enter));
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Dialog_Test, Bears_a_button_that_unloads_its_window) {
  Close.Cancel = true;
  Close.On_Click = [this] { Window.Unload(); };
  EXPECT_TRUE(Key_Down(toolkit::key_escape));
  EXPECT_FALSE(Window.Loaded());
}

TEST_F(Dialog_Test, Space_clicks_a_button_and_turns_a_check_box_over_when_it_goes_up) {
  Window.Set_Focus(Ok);
  EXPECT_TRUE(Key_Down(toolkit::key_space));
  EXPECT_TRUE(Ok.Held());
  EXPECT_EQ(Take(), Words{});
  In.Key_Up(Window, {toolkit::key_space});
  EXPECT_FALSE(Ok.Held());
  Window.Set_Focus(Every);
  Press_Key(toolkit::key_space);
  Press_Key(toolkit::key_space);
  EXPECT_EQ(Take(), (Words{"ok", "every 1", "every 0"}));
  Window.Set_Focus(Text);
  EXPECT_FALSE(Key_Down(toolkit::key_space)) << "a text box types it";
}

TEST_F(Dialog_Test, Space_clicks_nothing_if_the_focus_moves_on_before_it_goes_up) {
  Window.Set_Focus(Ok);
  Key_Down(toolkit::key_space);
  Key_Down(toolkit::key_tab);
  In.Key_Up(Window, {toolkit::key_space});
  EXPECT_FALSE(Ok.Held());
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Dialog_Test, A_left_press_gives_the_focus_and_holds_a_button_while_it_is_over_it) {
  Press(&Ok, Left(0, 0));
  EXPECT_EQ(Focus(), "Ok_Btn");
  EXPECT_TRUE(Ok.Held());
  Move(&Close, Left(0, 0));
  EXPECT_FALSE(Ok.Held());
  Move(&Ok, Left(0, 0));
  EXPECT_TRUE(Ok.Held());
  Release(&Ok, Left(0, 0));
  EXPECT_FALSE(Ok.Held());
  EXPECT_EQ(Take(), Words{"ok"});
  Press(&Close, Right(0, 0));
  EXPECT_EQ(Focus(), "Ok_Btn");
  EXPECT_FALSE(Close.Held());
  Release(&Close, Right(0, 0));
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Dialog_Test, A_press_on_a_disabled_control_leaves_the_focus_where_it_is) {
  Window.Set_Focus(Every);
  Ok.Enabled = false;
  Press(&Ok, Left(0, 0));
  EXPECT_EQ(Focus(), "Every_Chk");
}

TEST_F(Dialog_Test, A_button_is_held_no_more_when_its_window_goes_or_loses_the_activity_or_a_box_opens) {
  Press(&Ok, Left(0, 0));
  Window.Unload();
  Window.Show();
  EXPECT_FALSE(Ok.Held());
  for (int way = 0; way < 3; ++way) {
    Window.Set_Focus(Ok);
    Key_Down(toolkit::key_space);
    EXPECT_TRUE(Ok.Held());
    if (way == 0) In.Activity_Went(Window);
    if (way == 1) const Input::Modal modal(In);
    if (way == 2) Window.Unload();
    EXPECT_FALSE(Ok.Held()) << way;
    In.Key_Up(Window, {toolkit::key_space});
  }
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Dialog_Test, A_button_lets_go_when_a_box_takes_the_mouse) {
  Press(&Ok, Left(0, 0));
  In.Take_Mouse();
  EXPECT_FALSE(Ok.Held());
}

TEST_F(Dialog_Test, The_second_press_of_a_double_click_presses_a_button_again) {
  Press(&Every, Left(0, 0));
  Release(&Every, Left(0, 0));
  Press_Twice(&Every, Left(0, 0));
  Release(&Every, Left(0, 0));
  EXPECT_EQ(Take(), (Words{"every 1", "every 0"}));
}

TEST_F(Dialog_Test, An_accelerator_focuses_and_clicks_its_control_in_either_case) {
  EXPECT_TRUE(In.Accelerator(Window, 'o'));
  EXPECT_EQ(Focus(), "Ok_Btn");
  EXPECT_TRUE(In.Accelerator(Window, 'Y'));
  EXPECT_EQ(Focus(), "Every_Chk");
  EXPECT_EQ(Take(), (Words{"ok", "every 1"}));
  for (const char c : {'&', ' ', 'm', 'g', 'c'}) EXPECT_FALSE(In.Accelerator(Window, c)) << c;
  Ok.Enabled = false;
  EXPECT_FALSE(In.Accelerator(Window, 'o'));
}

TEST_F(Dialog_Test, A_labels_accelerator_leads_to_the_control_after_it) {
  Window.Set_Focus(Ok);
  EXPECT_TRUE(In.Accelerator(Window, 'h'));
  EXPECT_EQ(Focus(), "Text_Txt");
  Head.Mnemonics = false;
  EXPECT_FALSE(In.Accelerator(Window, 'h'));
}

TEST_F(Dialog_Test, The_focus_moves_on_from_a_control_that_can_have_it_no_more) {
  Window.Set_Focus(Ok);
  Ok.Enabled = false;
  EXPECT_EQ(Focus(), "Close_Btn");
  Close.Visible = false;
  EXPECT_EQ(Focus(), "Text_Txt");
  Text.Enabled = false;
  EXPECT_EQ(Focus(), "Every_Chk");
  Every.Enabled = false;
  EXPECT_EQ(Focus(), "none");
}

TEST_F(Dialog_Test, What_the_system_focuses_by_itself_has_the_focus) {
  Backend.Take();
  In.Focus_Came(Close);
  EXPECT_EQ(Focus(), "Close_Btn");
  In.Focus_Came(Close);
  EXPECT_EQ(Backend.Take(), (Words{"Close_Btn default button", "focus Close_Btn"}));
}
