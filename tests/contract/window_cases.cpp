// What the toolkit relies on of a window system, with a user before it: windows, timers, activity, the mouse, message boxes
// and menus.
#include "tests/contract/window_world.h"

TEST_F(Window_Cases, A_window_that_is_shown_is_active_unless_told_otherwise) {
  EXPECT_TRUE(Active(Main.Window));
  EXPECT_EQ(Take(), "+Main ");
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
  EXPECT_EQ(Take(), "");
  Show(other.Window);
  EXPECT_TRUE(Active(other.Window));
  EXPECT_EQ(Take(), "-Main ");
}

TEST_F(Window_Cases, A_press_makes_its_window_active_and_the_other_hears_of_it_first) {
  Labels_Window other(Backend, "Other", 7500);
  Show(other.Window);
  Take();
  other.Window.On_Deactivate = [&] { Log += "-Other "; };
  User.Click(Main.Window, &Main.A);
  EXPECT_TRUE(Active(Main.Window));
  const std::string log = Take();
  EXPECT_NE(log.find("Adown1 Aup1 Aclick "), std::string::npos) << log;
  EXPECT_LT(log.find("-Other "), log.find("Adown1 ")) << log;
  EXPECT_LT(log.find("+Main "), log.find("Adown1 ")) << log;
}

TEST_F(Window_Cases, A_window_that_unloads_when_it_loses_the_activity_is_gone_before_the_press) {
  Labels_Window tip(Backend, "Tip", 7500, &Main.Window);
  tip.Window.On_Deactivate = [&] { tip.Window.Unload(); };
  Show(tip.Window);
  Main.A.On_Mouse_Down = [&](const Mouse_Event&) { Log += tip.Window.Loaded() ? "too early " : "gone "; };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_NE(Take().find("gone "), std::string::npos);
  User.Release(Main.Window, &Main.A, Mouse_Button::Left);
}

TEST_F(Window_Cases, An_owner_becomes_active_when_its_active_window_goes) {
  Labels_Window third(Backend, "Third", 7500);
  Labels_Window tip(Backend, "Tip", 13000, &Main.Window);
  Show(third.Window);
  Show(tip.Window);
  EXPECT_TRUE(Active(tip.Window));
  World->Run([&] { tip.Window.Unload(); });
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
  User.Press_Key(Pressed_Key::F9);
  EXPECT_NE(Take().find("key120 "), std::string::npos);
}

TEST_F(Window_Cases, The_pressed_control_has_the_mouse_until_the_last_button_is_up) {
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  User.Press(Main.Window, &Main.B, Mouse_Button::Right);
  User.Release(Main.Window, &Main.B, Mouse_Button::Left);
  User.Release(Main.Window, &Main.B, Mouse_Button::Right);
  EXPECT_EQ(Take(), "Adown1 Adown2 Aup1 Aup2 ");
}

TEST_F(Window_Cases, Moves_of_a_press_go_to_its_control_also_over_another_window) {
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  double x = 0;
  Main.A.On_Mouse_Move = [&](const Mouse_Event& event) { x = event.X; };
  other.A.On_Mouse_Move = [&](const Mouse_Event&) { Log += "elsewhere "; };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  User.Move(other.Window, &other.A);
  EXPECT_NEAR(x, 6000 + 750, 15) << "twips within the control";
  User.Release(other.Window, &other.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "Adown1 Aup1 ");
}

TEST_F(Window_Cases, A_second_button_over_another_window_goes_to_the_pressed_control) {
  Labels_Window other(Backend, "Other", 7500);
  Listen(other.A);
  World->Run([&] { other.Window.Show(false); });
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  User.Press(other.Window, &other.A, Mouse_Button::Right);
  User.Release(other.Window, &other.A, Mouse_Button::Right);
  User.Release(other.Window, &other.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "Adown1 Adown2 Aup2 Aup1 ");
  EXPECT_TRUE(Active(Main.Window));
}

TEST_F(Window_Cases, A_press_on_the_ground_that_is_released_over_another_window_is_no_click) {
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  Take();
  User.Press(Main.Window, nullptr, Mouse_Button::Left);
  User.Release(other.Window, &other.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "");
}

TEST_F(Window_Cases, Only_the_left_button_clicks) {
  Take();
  for (const auto button : {Mouse_Button::Right, Mouse_Button::Middle}) {
    User.Press(Main.Window, nullptr, button);
    User.Release(Main.Window, nullptr, button);
  }
  EXPECT_EQ(Take(), "");
  User.Click(Main.Window, nullptr);
  EXPECT_EQ(Take(), "ground ");
}

TEST_F(Window_Cases, A_release_without_a_press_reaches_nothing) {
  Take();
  User.Release(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_EQ(Take(), "");
}

TEST_F(Window_Cases, A_timer_ticks_until_it_is_stopped_in_its_tick_too) {
  int ticks = 0;
  toolkit::Timer timer(Backend, "Timer", 50);
  timer.On_Tick = [&] {
    if (++ticks == 3) timer.Disable();
  };
  User.Wait(300);
  EXPECT_EQ(ticks, 0);
  timer.Enable();
  User.Wait(1000);
  EXPECT_EQ(ticks, 3);
}

TEST_F(Window_Cases, A_message_box_gives_its_answer_and_keeps_the_user_out_meanwhile) {
  Labels_Window other(Backend, "Other", 7500);
  World->Run([&] { other.Window.Show(false); });
  const auto check = [&] {
    EXPECT_FALSE(Main.Window.Accepts_Input());
    EXPECT_FALSE(other.Window.Accepts_Input());
    EXPECT_TRUE(Backend.Input.Modal_Open());
  };
  User.Answer(Box_Answer::Cancel, check);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No_Cancel), Box_Answer::Cancel);
  User.Answer(Box_Answer::No, check);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::No);
  User.Answer(Box_Answer::Yes, check);
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::Yes);
  User.Answer(Box_Answer::OK, check);
  EXPECT_EQ(Ask(Box_Buttons::OK), Box_Answer::OK);
  EXPECT_TRUE(Main.Window.Accepts_Input());
  EXPECT_TRUE(other.Window.Accepts_Input());
  Take();
  User.Click(other.Window, nullptr);
  EXPECT_TRUE(Active(other.Window));
}

TEST_F(Window_Cases, The_window_that_was_active_is_so_again_after_a_message_box) {
  User.Answer(Box_Answer::OK, [] {});
  Ask(Box_Buttons::OK);
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
  Take();
  User.Press_Key(Pressed_Key::F9);
  EXPECT_EQ(Take(), "key120 ");
}

TEST_F(Window_Cases, A_box_over_a_window_that_goes_when_it_loses_the_activity_stays_and_so_does_the_window) {
  Labels_Window tip(Backend, "Tip", 7500, &Main.Window);
  tip.Window.On_Deactivate = [&] { tip.Window.Unload(); };
  Show(tip.Window);
  bool open = false;
  User.Answer(Box_Answer::Yes, [&] {
    open = true;
    EXPECT_TRUE(tip.Window.Loaded());
    EXPECT_TRUE(Active(tip.Window));
  });
  EXPECT_EQ(Ask(Box_Buttons::Yes_No), Box_Answer::Yes);
  EXPECT_TRUE(open);
  User.Wait(100);
  EXPECT_TRUE(Active(tip.Window));
  User.Click(Main.Window, nullptr);
  EXPECT_FALSE(tip.Window.Loaded());
}

TEST_F(Window_Cases, A_window_that_the_program_disabled_is_active_after_its_message_box) {
  Main.Window.Enabled = false;
  User.Answer(Box_Answer::OK, [] {});
  Ask(Box_Buttons::OK);
  Main.Window.Enabled = true;
  User.Wait(100);
  EXPECT_TRUE(Active(Main.Window));
}

TEST_F(Window_Cases, Timers_tick_under_a_message_box_and_under_a_menu) {
  int ticks = 0;
  toolkit::Timer timer(Backend, "Timer", 50);
  timer.On_Tick = [&] { ++ticks; };
  timer.Enable();
  User.Answer(Box_Answer::OK, [&] { EXPECT_GE(ticks, 2); });
  Ask(Box_Buttons::OK);
  const int before = ticks;
  User.Choose(0, 0, [&] { EXPECT_GE(ticks - before, 2); });
  EXPECT_EQ(Track({{1, "One"}}), 0);
}

TEST_F(Window_Cases, A_message_box_takes_the_mouse) {
  Main.A.On_Mouse_Down = [&](const Mouse_Event&) {
    User.Answer(Box_Answer::OK, [] {});
    Ask(Box_Buttons::OK);
  };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_EQ(Backend.Input.Mouse_Window(), nullptr);
  User.Release(Main.Window, &Main.A, Mouse_Button::Left);
  EXPECT_EQ(Take().find("Aup"), std::string::npos);
}

TEST_F(Window_Cases, A_menu_takes_the_mouse_and_gives_the_number_of_the_chosen_item) {
  int chosen = -1;
  Main.A.On_Mouse_Down = [&](const Mouse_Event&) {
    User.Choose(2, 22, [] {});
    chosen = Track({{11, "One"}, {22, "Two"}, {33, "Three"}});
  };
  Take();
  User.Press(Main.Window, &Main.A, Mouse_Button::Right);
  EXPECT_EQ(chosen, 22);
  User.Release(Main.Window, &Main.A, Mouse_Button::Right);
  EXPECT_EQ(Take().find("Aup"), std::string::npos);
}

TEST_F(Window_Cases, A_grey_item_is_no_choice) {
  User.Choose(1, 11, [] {});
  EXPECT_EQ(Track({{11, "One", true}, {22, "Two"}}), 0);
}
