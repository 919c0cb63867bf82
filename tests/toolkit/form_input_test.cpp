// The road of the mouse and the keys from a window to its controls.
#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/command_button.h"

using toolkit::Command_Button;
using toolkit::Label;
using toolkit::Mouse_Button;

namespace {

std::string Heard_Mouse(const char* what, const toolkit::Control& control, Mouse_Button button, double x, double y) {
  return control.Name + ' ' + what + ' ' + std::to_string(static_cast<int>(button)) + " at " +
         std::to_string(static_cast<int>(x)) + ' ' + std::to_string(static_cast<int>(y));
}

class Form_Input_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Form_Input_Test() {
    Under.Place({100, 100, 200, 200});
    Over.Place({200, 200, 200, 200});
    Listen(Under);
    Listen(Over);
    Window.On_Click = [this] { Heard.emplace_back("window click"); };
  }

  void Listen(toolkit::Control& control) {
    control.On_Mouse_Down = [&](Mouse_Button b, double x, double y) {
      Heard.push_back(Heard_Mouse("down", control, b, x, y));
    };
    control.On_Mouse_Move = [&](Mouse_Button b, double x, double y) {
      Heard.push_back(Heard_Mouse("move", control, b, x, y));
    };
    control.On_Mouse_Up = [&](Mouse_Button b, double x, double y) {
      Heard.push_back(Heard_Mouse("up", control, b, x, y));
    };
    control.On_Click = [&] { Heard.push_back(control.Name + " click"); };
    control.On_Double_Click = [&] { Heard.push_back(control.Name + " double click"); };
  }

  Words Take() {
    Words taken;
    taken.swap(Heard);
    return taken;
  }

  Words Heard;
  Label Under{Window, "Under"}, Over{Window, "Over"};
};

}  // namespace

TEST_F(Form_Input_Test, Control_At_gives_the_topmost_visible_control) {
  EXPECT_EQ(Window.Control_At(150, 150), &Under);
  EXPECT_EQ(Window.Control_At(250, 250), &Over) << "where both are, the later one";
  EXPECT_EQ(Window.Control_At(50, 50), nullptr);
  Over.Visible = false;
  EXPECT_EQ(Window.Control_At(250, 250), &Under);
  EXPECT_EQ(Window.Control_At(350, 350), nullptr);
}

TEST_F(Form_Input_Test, Control_At_counts_in_twips_whatever_the_unit) {
  Window.Scale = toolkit::Scale_Unit::Pixels;
  EXPECT_EQ(Window.Control_At(150, 150), &Under);
}

TEST_F(Form_Input_Test, A_press_goes_to_the_control_under_it_in_twips_within_it) {
  Window.Mouse_Down(Mouse_Button::Left, 110, 120);
  Window.Mouse_Down(Mouse_Button::Right, 250, 260);
  EXPECT_EQ(Take(), (Words{"Under down 1 at 10 20", "Over down 2 at 50 60"}));
}

TEST_F(Form_Input_Test, A_move_without_a_press_goes_to_the_control_under_it) {
  Window.Mouse_Move(Mouse_Button::None, 110, 120);
  Window.Mouse_Move(Mouse_Button::None, 350, 360);
  Window.Mouse_Move(Mouse_Button::None, 50, 50);
  EXPECT_EQ(Take(), (Words{"Under move 0 at 10 20", "Over move 0 at 150 160"}));
}

TEST_F(Form_Input_Test, The_pressed_control_gets_the_moves_and_the_release_wherever_they_are) {
  Window.Mouse_Down(Mouse_Button::Left, 110, 120);
  Window.Mouse_Move(Mouse_Button::Left, 350, 350);
  Window.Mouse_Move(Mouse_Button::Left, 0, 0);
  Window.Mouse_Up(Mouse_Button::Left, 350, 350);
  EXPECT_EQ(Take(), (Words{"Under down 1 at 10 20", "Under move 1 at 250 250", "Under move 1 at -100 -100",
                           "Under up 1 at 250 250"}));
  Window.Mouse_Move(Mouse_Button::None, 350, 350);
  EXPECT_EQ(Take(), Words{"Over move 0 at 150 150"}) << "the release let the mouse go";
}

TEST_F(Form_Input_Test, A_left_release_over_the_pressed_control_clicks_it_after_the_release) {
  Window.Mouse_Down(Mouse_Button::Left, 110, 120);
  Window.Mouse_Up(Mouse_Button::Left, 130, 140);
  EXPECT_EQ(Take(), (Words{"Under down 1 at 10 20", "Under up 1 at 30 40", "Under click"}));
}

TEST_F(Form_Input_Test, Another_button_clicks_no_control) {
  for (const Mouse_Button button : {Mouse_Button::Right, Mouse_Button::Middle}) {
    Window.Mouse_Down(button, 110, 120);
    Window.Mouse_Up(button, 110, 120);
    const std::string number = std::to_string(static_cast<int>(button));
    EXPECT_EQ(Take(), (Words{"Under down " + number + " at 10 20", "Under up " + number + " at 10 20"}));
  }
}

TEST_F(Form_Input_Test, The_release_of_a_press_beside_all_controls_clicks_the_window) {
  Window.Mouse_Down(Mouse_Button::Left, 50, 50);
  Window.Mouse_Up(Mouse_Button::Left, 110, 120);
  EXPECT_EQ(Take(), Words{"window click"});
}

TEST_F(Form_Input_Test, A_disabled_control_keeps_the_mouse_from_those_below_and_does_nothing) {
  Over.Enabled = false;
  Window.Mouse_Down(Mouse_Button::Left, 250, 250);
  Window.Mouse_Move(Mouse_Button::Left, 250, 250);
  Window.Mouse_Up(Mouse_Button::Left, 250, 250);
  Window.Double_Click(Mouse_Button::Left, 250, 250);
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Form_Input_Test, A_control_disabled_by_its_own_press_gets_no_release) {
  Under.On_Mouse_Down = [this](Mouse_Button, double, double) { Under.Enabled = false; };
  Window.Mouse_Down(Mouse_Button::Left, 110, 120);
  Window.Mouse_Up(Mouse_Button::Left, 110, 120);
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Form_Input_Test, A_left_double_click_goes_to_the_control_under_it) {
  Window.Double_Click(Mouse_Button::Left, 250, 250);
  EXPECT_EQ(Take(), Words{"Over double click"});
  Window.Double_Click(Mouse_Button::Left, 50, 50);
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Form_Input_Test, A_double_click_of_another_button_is_a_press) {
  Window.Double_Click(Mouse_Button::Right, 110, 120);
  EXPECT_EQ(Take(), Words{"Under down 2 at 10 20"});
}

TEST_F(Form_Input_Test, The_release_behind_a_double_click_is_no_click) {
  Window.Double_Click(Mouse_Button::Left, 110, 120);
  Take();
  Window.Mouse_Up(Mouse_Button::Left, 110, 120);
  EXPECT_EQ(Take(), Words{"Under up 1 at 10 20"});
}

TEST_F(Form_Input_Test, The_release_behind_a_double_click_goes_to_the_same_control) {
  Window.Double_Click(Mouse_Button::Left, 110, 120);
  Take();
  Window.Mouse_Up(Mouse_Button::Left, 350, 350);
  EXPECT_EQ(Take(), Words{"Under up 1 at 250 250"});
}

TEST_F(Form_Input_Test, A_lost_mouse_ends_the_press_without_a_release) {
  Window.Mouse_Down(Mouse_Button::Left, 110, 120);
  Window.Mouse_Lost();
  Window.Mouse_Move(Mouse_Button::None, 350, 350);
  EXPECT_EQ(Take(), (Words{"Under down 1 at 10 20", "Over move 0 at 150 150"}));
}

TEST_F(Form_Input_Test, A_control_that_goes_while_it_has_the_mouse_hears_no_more) {
  {
    Label passing(Window, "Passing");
    passing.Place({500, 500, 100, 100});
    Window.Mouse_Down(Mouse_Button::Left, 510, 510);
  }
  Window.Mouse_Move(Mouse_Button::Left, 110, 120);
  Window.Mouse_Up(Mouse_Button::Left, 110, 120);
  EXPECT_EQ(Take(), (Words{"Under move 1 at 10 20", "window click"}));
}

TEST_F(Form_Input_Test, An_unload_by_the_press_lets_the_mouse_go) {
  Under.On_Mouse_Down = [this](Mouse_Button, double, double) { Window.Unload(); };
  Window.Mouse_Down(Mouse_Button::Left, 110, 120);
  Window.Load();
  Window.Mouse_Move(Mouse_Button::None, 350, 350);
  EXPECT_EQ(Take(), Words{"Over move 0 at 150 150"});
}

TEST_F(Form_Input_Test, The_window_hears_of_a_released_key_by_its_code) {
  Window.Key_Up(112);
  int heard = 0;
  Window.On_Key_Up = [&](int code) { heard = code; };
  Window.Key_Up(120);
  EXPECT_EQ(heard, 120);
}

namespace {

class Dialog_Keys_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Dialog_Keys_Test() {
    Ok.On_Click = [this] { Heard.emplace_back("ok"); };
    Close.On_Click = [this] { Heard.emplace_back("close"); };
  }

  Words Heard;
  Label A_Label{Window, "A_Lbl"};
  Command_Button Ok{Window, "OK_Btn"}, Close{Window, "Close_Btn"};
};

}  // namespace

TEST_F(Dialog_Keys_Test, Find_no_button_unless_one_is_marked) {
  EXPECT_FALSE(Window.Enter_Pressed());
  EXPECT_FALSE(Window.Escape_Pressed());
  EXPECT_EQ(Heard, Words{});
}

TEST_F(Dialog_Keys_Test, Press_the_default_and_the_cancel_button) {
  Ok.Default = true;
  Close.Cancel = true;
  EXPECT_TRUE(Window.Enter_Pressed());
  EXPECT_EQ(Heard, Words{"ok"});
  EXPECT_TRUE(Window.Escape_Pressed());
  EXPECT_EQ(Heard, (Words{"ok", "close"}));
}

TEST_F(Dialog_Keys_Test, Follow_a_change_of_the_marks) {
  Ok.Default = true;
  Ok.Default = false;
  Close.Default = true;
  EXPECT_TRUE(Window.Enter_Pressed());
  EXPECT_EQ(Heard, Words{"close"});
}

TEST_F(Dialog_Keys_Test, Press_no_disabled_or_hidden_button) {
  Ok.Default = true;
  Ok.Enabled = false;
  EXPECT_TRUE(Window.Enter_Pressed()) << "the key is taken all the same";
  Ok.Enabled = true;
  Ok.Visible = false;
  EXPECT_TRUE(Window.Enter_Pressed());
  EXPECT_EQ(Heard, Words{});
}

TEST_F(Dialog_Keys_Test, Bear_a_button_that_unloads_its_window) {
  Close.Cancel = true;
  Close.On_Click = [this] { Window.Unload(); };
  EXPECT_TRUE(Window.Escape_Pressed());
  EXPECT_FALSE(Window.Loaded());
}
