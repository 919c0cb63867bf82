// The one road of input: what a press, a release and a key mean to windows and controls.
#include "tests/toolkit/input_world.h"

TEST_F(Input_Test, A_press_goes_to_the_control_under_it_in_twips_within_it) {
  Press(&A, Left(110, 120));
  Press(&B, Left(450, 460));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "B down 1 at 50 60"}));
}

TEST_F(Input_Test, A_press_may_lie_beside_its_control_by_the_rounding_of_a_pixel) {
  Press(&A, Left(97, 120));
  EXPECT_EQ(Take(), Words{"A down 1 at -3 20"});
}

TEST_F(Input_Test, A_move_without_a_press_goes_to_the_control_under_it_with_the_button_reported) {
  Move(&A, Left(110, 120));
  Move(&B, {Mouse_Button::None, 450, 460});
  Move(nullptr, {Mouse_Button::None, 50, 50});
  EXPECT_EQ(Take(), (Words{"A move 1 at 10 20", "B move 0 at 50 60"}));
}

TEST_F(Input_Test, The_pressed_control_gets_the_moves_and_the_release_wherever_they_are) {
  Press(&A, Left(110, 120));
  EXPECT_EQ(Backend.Take(), Words{"capture"});
  Move(&B, Left(450, 450));
  Move(nullptr, Left(0, 0));
  Release(&B, Left(450, 450));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "A move 1 at 350 350", "A move 1 at -100 -100", "A up 1 at 350 350"}));
  EXPECT_EQ(Backend.Take(), Words{"release"});
  Move(&B, {Mouse_Button::None, 450, 450});
  EXPECT_EQ(Take(), Words{"B move 0 at 50 50"}) << "the release let the mouse go";
}

TEST_F(Input_Test, A_second_button_goes_to_the_pressed_control_and_the_mouse_stays_until_the_last_is_up) {
  Press(&A, Left(110, 120));
  Press(&B, Right(450, 450));
  Release(&B, Left(450, 450));
  EXPECT_EQ(In.Mouse_Window(), &Window);
  Move(&B, Right(450, 450));
  Release(&B, Right(450, 450));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "A down 2 at 350 350", "A up 1 at 350 350", "A move 2 at 350 350",
                           "A up 2 at 350 350"}));
  EXPECT_EQ(In.Mouse_Window(), nullptr);
}

TEST_F(Input_Test, The_same_button_again_begins_anew) {
  Press(&A, Left(110, 120));
  Press(&B, Left(450, 450));
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "B down 1 at 50 50", "B up 1 at -290 -280"}));
}

TEST_F(Input_Test, A_release_without_a_press_reaches_nothing) {
  Release(&A, Left(110, 120));
  Press(&A, Left(110, 120));
  Release(&A, Right(110, 120));
  Release(&A, Left(110, 120));
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "A up 1 at 10 20", "A click"}));
}

TEST_F(Input_Test, A_left_release_over_the_pressed_control_clicks_it_after_the_release) {
  Press(&A, Left(110, 120));
  Release(&A, Left(130, 140));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "A up 1 at 30 40", "A click"}));
}

TEST_F(Input_Test, A_press_on_one_control_and_a_release_on_another_is_no_click) {
  Press(&A, Left(110, 120));
  Release(&B, Left(450, 450));
  Press(nullptr, Left(0, 0));
  Release(&A, Left(110, 120));
  Press(&A, Left(110, 120));
  Release(nullptr, Left(0, 0));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "A up 1 at 350 350", "A down 1 at 10 20", "A up 1 at -100 -100"}));
}

TEST_F(Input_Test, A_press_on_the_bare_ground_clicks_only_if_it_is_released_there) {
  for (const std::optional<toolkit::Control*> over : {std::optional<toolkit::Control*>(), {&A}}) {
    Press(nullptr, Left(0, 0));
    Release(over, Left(110, 120));
  }
  EXPECT_EQ(Take(), Words{});
  Press(nullptr, Left(0, 0));
  Release(nullptr, Left(5, 5));
  EXPECT_EQ(Take(), Words{"window click"});
}

TEST_F(Input_Test, A_double_press_while_another_button_is_held_goes_by_the_control_that_has_the_mouse) {
  Press(&A, Right(110, 120));
  Press_Twice(&B, Left(450, 450));
  EXPECT_EQ(Take(), (Words{"A down 2 at 10 20", "A double click"}));
}

TEST_F(Input_Test, A_window_that_is_disabled_loses_the_mouse) {
  Press(&A, Left(110, 120));
  Window.Enabled = false;
  Window.Enabled = true;
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{"A down 1 at 10 20"});
}

TEST_F(Input_Test, A_close_request_waits_for_no_box_and_does_nothing_under_one) {
  int closes = 0;
  Window.On_Close = [&] { ++closes; };
  {
    const Input::Modal modal(In);
    Window.Close_Requested();
  }
  EXPECT_EQ(closes, 0);
  Window.Close_Requested();
  EXPECT_EQ(closes, 1);
}

TEST_F(Input_Test, Only_the_left_button_clicks_on_controls_and_on_the_bare_ground) {
  for (const auto& event : {Right(110, 120), Middle(110, 120)}) {
    Press(&A, event);
    Release(&A, event);
    Press(nullptr, event);
    Release(nullptr, event);
    const std::string number = std::to_string(static_cast<int>(event.Button));
    EXPECT_EQ(Take(), (Words{"A down " + number + " at 10 20", "A up " + number + " at 10 20"}));
  }
  Press(nullptr, Left(0, 0));
  Release(nullptr, Left(0, 0));
  EXPECT_EQ(Take(), Words{"window click"});
}

TEST_F(Input_Test, A_disabled_control_takes_the_mouse_and_does_nothing_with_it) {
  A.Enabled = false;
  Press(&A, Left(110, 120));
  Move(&A, Left(110, 120));
  Release(&A, Left(110, 120));
  Press_Twice(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Input_Test, A_control_disabled_by_its_own_press_gets_no_release) {
  A.On_Mouse_Down = [this](const Mouse_Event&) { A.Enabled = false; };
  Press(&A, Left(110, 120));
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Input_Test, A_left_double_click_goes_to_the_control_under_it_and_its_release_is_no_click) {
  Press_Twice(&B, Left(450, 450));
  Release(&B, Left(450, 450));
  Press_Twice(nullptr, Left(50, 50));
  Release(nullptr, Left(50, 50));
  EXPECT_EQ(Take(), (Words{"B double click", "B up 1 at 50 50"}));
}

TEST_F(Input_Test, The_release_of_a_double_click_goes_to_the_same_control) {
  Press_Twice(&A, Left(110, 120));
  Release(&B, Left(450, 450));
  EXPECT_EQ(Take(), (Words{"A double click", "A up 1 at 350 350"}));
}

TEST_F(Input_Test, A_double_click_of_another_button_is_a_press) {
  Press_Twice(&A, Right(110, 120));
  EXPECT_EQ(Take(), Words{"A down 2 at 10 20"});
}

TEST_F(Input_Test, A_lost_mouse_ends_the_press_without_a_release) {
  Press(&A, Left(110, 120));
  In.Mouse_Lost();
  Move(&B, {Mouse_Button::None, 450, 450});
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), (Words{"A down 1 at 10 20", "B move 0 at 50 50"}));
}

TEST_F(Input_Test, A_control_that_goes_while_it_has_the_mouse_hears_no_more) {
  {
    Label passing(Window, "Passing");
    Press(&passing, Left(510, 510));
  }
  Move(&A, Left(110, 120));
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{});
  Move(&A, {Mouse_Button::None, 110, 120});
  EXPECT_EQ(Take(), Words{"A move 0 at 10 20"});
}

TEST_F(Input_Test, An_unload_by_the_press_lets_the_mouse_go) {
  A.On_Mouse_Down = [this](const Mouse_Event&) { Window.Unload(); };
  Press(&A, Left(110, 120));
  EXPECT_EQ(In.Mouse_Window(), nullptr);
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Input_Test, A_release_that_unloads_the_window_clicks_nothing) {
  A.On_Mouse_Up = [this](const Mouse_Event&) { Window.Unload(); };
  Press(&A, Left(110, 120));
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{"A down 1 at 10 20"});
}

TEST_F(Input_Test, While_a_box_is_open_no_window_takes_input) {
  Form disabled(Backend, "Edit_Frm");
  disabled.Enabled = false;
  disabled.Load();
  Backend.Take();
  {
    const Input::Modal outer(In);
    EXPECT_EQ(Backend.Take(), (Words{"form enabled", "form enabled"}));
    const Input::Modal inner(In);
    Press(&A, Left(110, 120));
    Move(&A, Left(110, 120));
    EXPECT_FALSE(Key_Down(toolkit::key_escape));
    In.Key_Up(Window, {toolkit::key_f5});
    EXPECT_FALSE(Window.Accepts_Input());
    Form late(Backend, "frmBalloon");
    late.Load();
    EXPECT_FALSE(late.Accepts_Input());
  }
  EXPECT_EQ(Take(), Words{});
  EXPECT_TRUE(Window.Accepts_Input());
  EXPECT_FALSE(disabled.Accepts_Input());
}

TEST_F(Input_Test, The_owner_of_a_box_is_left_to_the_system_until_the_box_is_gone) {
  Form other(Backend, "Edit_Frm");
  other.Load();
  Backend.Take();
  {
    const Input::Modal modal(In, &Window);
    EXPECT_EQ(Backend.Take(), Words{"form enabled"});
    EXPECT_FALSE(Window.Accepts_Input());
  }
  EXPECT_EQ(Backend.Take(), (Words{"form enabled", "form enabled"}));
}

TEST_F(Input_Test, A_box_takes_the_mouse) {
  Press(&A, Left(110, 120));
  Backend.Take();
  { const Input::Modal modal(In); }
  EXPECT_EQ(Backend.Take().front(), "release");
  Release(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{"A down 1 at 10 20"});
}

TEST_F(Input_Test, The_window_hears_of_a_released_key_by_its_code) {
  In.Key_Up(Window, {toolkit::key_f1});
  int heard = 0;
  Window.On_Key_Up = [&](int code) { heard = code; };
  In.Key_Up(Window, {toolkit::key_f9, true, true, true});
  EXPECT_EQ(heard, 120);
}

TEST_F(Input_Test, Keys_mean_nothing_to_a_window_without_controls_that_take_them) {
  for (const int code : {toolkit::key_tab, toolkit::key_enter, toolkit::key_escape, toolkit::key_space})
    EXPECT_FALSE(Key_Down(code));
  EXPECT_FALSE(In.Accelerator(Window, 'a'));
  EXPECT_EQ(Window.Focused(), nullptr);
}
