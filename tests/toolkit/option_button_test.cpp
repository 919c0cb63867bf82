#include "toolkit/option_button.h"

#include "tests/toolkit/input_world.h"
#include "toolkit/frame.h"

using toolkit::Option_Button;

namespace {

class Option_Button_Test : public Input_Test {
 protected:
  Option_Button_Test() {
    for (Option_Button* const option : {&One, &Two, &Three, &Other, &Ground})
      option->On_Click = [this, option] { Clicked.push_back(option->Name + (option->Value ? " on" : " off")); };
    Backend.Take();
  }

  Words Take_Clicked() {
    Words taken;
    taken.swap(Clicked);
    return taken;
  }

  std::string Focus() { return Window.Focused() == nullptr ? "none" : Window.Focused()->Name; }

  toolkit::Frame Group{Window, "Group_Fra"}, Second{Window, "Second_Fra"};
  Option_Button One{Group, "One"}, Two{Group, "Two"}, Three{Group, "Three"};
  Option_Button Other{Second, "Other"};
  Option_Button Ground{Window, "Ground"};
  Words Clicked;
};

}  // namespace

TEST_F(Option_Button_Test, Of_those_in_one_frame_one_is_on) {
  One.Value = true;
  Two.Value = true;
  EXPECT_FALSE(One.Value());
  EXPECT_TRUE(Two.Value());
  EXPECT_EQ(Take_Clicked(), (Words{"One on", "Two on"})) << "the one that goes off doesn't click";
}

TEST_F(Option_Button_Test, Those_of_another_frame_and_of_the_window_are_groups_of_their_own) {
  One.Value = true;
  Other.Value = true;
  Ground.Value = true;
  EXPECT_TRUE(One.Value());
  EXPECT_TRUE(Other.Value());
  EXPECT_TRUE(Ground.Value());
}

TEST_F(Option_Button_Test, The_others_are_off_by_the_time_of_the_click) {
  One.Value = true;
  Two.On_Click = [this] { Clicked.emplace_back(One.Value ? "both on" : "one off"); };
  Two.Value = true;
  EXPECT_EQ(Take_Clicked(), (Words{"One on", "one off"}));
}

TEST_F(Option_Button_Test, To_turn_on_what_is_on_or_to_turn_it_off_is_no_click_of_the_program) {
  One.Value = true;
  Take_Clicked();
  One.Value = true;
  One.Value = false;
  One.Caption = "One";
  EXPECT_EQ(Take_Clicked(), Words{});
}

TEST_F(Option_Button_Test, The_user_clicks_it_even_where_it_is_on) {
  One.User_Click();
  One.User_Click();
  EXPECT_EQ(Take_Clicked(), (Words{"One on", "One on"}));
}

TEST_F(Option_Button_Test, Takes_no_user_s_click_when_disabled_or_not_on_view) {
  One.Enabled = false;
  One.User_Click();
  One.Enabled = true;
  Group.Enabled = false;
  One.User_Click();
  Group.Enabled = true;
  Group.Visible = false;
  One.User_Click();
  EXPECT_FALSE(One.Value());
  EXPECT_EQ(Take_Clicked(), Words{});
  One.Value = true;
  EXPECT_EQ(Take_Clicked(), Words{"One on"}) << "but the program's";
}

TEST_F(Option_Button_Test, The_arrows_go_round_the_group_and_turn_on_what_they_come_to) {
  Window.Set_Focus(One);
  One.Value = true;
  Take_Clicked();
  Words way;
  for (const int key : {toolkit::key_down, toolkit::key_right, toolkit::key_down, toolkit::key_up, toolkit::key_left}) {
    EXPECT_TRUE(Key_Down(key));
    way.push_back(Focus());
  }
  EXPECT_EQ(way, (Words{"Two", "Three", "One", "Three", "Two"}));
  EXPECT_EQ(Take_Clicked(), (Words{"Two on", "Three on", "One on", "Three on", "Two on"}));
}

TEST_F(Option_Button_Test, The_arrows_pass_what_cannot_have_the_focus) {
  Two.Enabled = false;
  Window.Set_Focus(One);
  EXPECT_TRUE(Key_Down(toolkit::key_down));
  EXPECT_EQ(Focus(), "Three");
  One.Visible = false;
  EXPECT_TRUE(Key_Down(toolkit::key_down));
  EXPECT_EQ(Focus(), "Three") << "nowhere to go";
  EXPECT_EQ(Take_Clicked(), Words{"Three on"});
}

TEST_F(Option_Button_Test, An_arrow_in_a_group_of_one_does_nothing) {
  Window.Set_Focus(Other);
  EXPECT_TRUE(Key_Down(toolkit::key_down));
  EXPECT_FALSE(Other.Value());
  EXPECT_EQ(Take_Clicked(), Words{});
}

TEST_F(Option_Button_Test, The_tab_key_stops_at_the_one_that_is_on_or_at_the_first) {
  EXPECT_TRUE(One.Tab_Stop());
  EXPECT_FALSE(Two.Tab_Stop());
  One.Enabled = false;
  EXPECT_TRUE(Two.Tab_Stop());
  One.Enabled = true;
  Three.Value = true;
  EXPECT_FALSE(One.Tab_Stop());
  EXPECT_TRUE(Three.Tab_Stop());
  Three.Enabled = false;
  EXPECT_TRUE(One.Tab_Stop()) << "one that is on and can't have the focus doesn't count";
  EXPECT_FALSE(Three.Tab_Stop());
}

TEST_F(Option_Button_Test, The_tab_key_passes_a_group_in_one_step) {
  Two.Value = true;
  Window.Set_Focus(Ground);
  Words way;
  for (int i = 0; i < 3; ++i) {
    Key_Down(toolkit::key_tab);
    way.push_back(Focus());
  }
  EXPECT_EQ(way, (Words{"Two", "Other", "Ground"}));
}

TEST_F(Option_Button_Test, The_space_key_clicks_when_it_goes_up) {
  Window.Set_Focus(Two);
  EXPECT_TRUE(Key_Down(toolkit::key_space));
  EXPECT_TRUE(Two.Held());
  EXPECT_FALSE(Two.Value());
  In.Key_Up(Window, {toolkit::key_space});
  EXPECT_FALSE(Two.Held());
  EXPECT_EQ(Take_Clicked(), Words{"Two on"});
  In.Key_Up(Window, {toolkit::key_space});
  EXPECT_EQ(Take_Clicked(), Words{}) << "it wasn't held";
}

TEST_F(Option_Button_Test, Other_keys_are_not_its_own) {
  Window.Set_Focus(One);
  for (const int key : {toolkit::key_enter, toolkit::key_f5}) EXPECT_FALSE(One.Key_Down({key}));
}

TEST_F(Option_Button_Test, Home_and_End_and_the_pages_go_to_the_ends_of_the_group) {
  Window.Set_Focus(Two);
  EXPECT_TRUE(Two.Key_Down({toolkit::key_end}));
  EXPECT_EQ(Focus(), "Three");
  EXPECT_TRUE(Three.Key_Down({toolkit::key_end})) << "it is there already";
  EXPECT_TRUE(Three.Key_Down({toolkit::key_home}));
  EXPECT_EQ(Focus(), "One");
  EXPECT_TRUE(One.Key_Down({toolkit::key_page_down}));
  One.Enabled = false;
  EXPECT_TRUE(Three.Key_Down({toolkit::key_page_up}));
  EXPECT_EQ(Focus(), "Two");
  EXPECT_EQ(Take_Clicked(), (Words{"Three on", "One on", "Three on", "Two on"}));
}

TEST_F(Option_Button_Test, The_mouse_holds_it_and_turns_it_on_before_the_release_is_told) {
  One.On_Mouse_Up = [this](const Mouse_Event&) { Clicked.emplace_back(One.Value ? "up, on" : "up, off"); };
  Press(&One, Left(0, 0));
  EXPECT_TRUE(One.Held());
  EXPECT_EQ(Focus(), "One");
  Release(&One, Left(0, 0));
  EXPECT_FALSE(One.Held());
  EXPECT_EQ(Take_Clicked(), (Words{"One on", "up, on"}));
}

TEST_F(Option_Button_Test, The_second_press_of_a_double_click_presses_it_again) {
  Press(&One, Left(0, 0));
  Release(&One, Left(0, 0));
  Press_Twice(&One, Left(0, 0));
  Release(&One, Left(0, 0));
  EXPECT_EQ(Take_Clicked(), (Words{"One on", "One on"}));
}

TEST_F(Option_Button_Test, Its_accelerator_turns_it_on) {
  Three.Caption = "&Third";
  EXPECT_TRUE(In.Accelerator(Window, 't'));
  EXPECT_EQ(Take_Clicked(), Words{"Three on"});
  EXPECT_EQ(Focus(), "Three");
}

TEST_F(Option_Button_Test, Tells_of_each_change_before_it_clicks) {
  One.Value = true;
  Backend.Take();
  Words told;
  Two.On_Click = [&] { told = Backend.Take(); };
  Two.Value = true;
  EXPECT_EQ(told, (Words{"Two value", "One value"}));
}

TEST_F(Option_Button_Test, Bears_a_click_that_closes_the_window) {
  One.On_Click = [this] { Window.Unload(); };
  Window.Set_Focus(Three);
  EXPECT_TRUE(Key_Down(toolkit::key_down));
  EXPECT_FALSE(Window.Loaded());
  EXPECT_TRUE(One.Value());
}
