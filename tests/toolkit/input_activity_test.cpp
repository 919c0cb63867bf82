// Which window is active, and what the windows hear of that.
#include "tests/toolkit/input_world.h"

TEST_F(Input_Test, Windows_hear_in_order_of_the_activity_that_comes_and_goes) {
  Form other(Backend, "Tip");
  for (Form* const form : {&Window, &other}) {
    form->On_Activate = [this, form] { Heard.push_back("+" + form->Name); };
    form->On_Deactivate = [this, form] { Heard.push_back("-" + form->Name); };
  }
  other.Show(false);
  other.Activate();
  Window.Activate();
  other.Activate();
  EXPECT_EQ(Take(), Words{}) << "not in the middle of the system's work";
  In.Tell_Of_Activity();
  EXPECT_EQ(Take(), (Words{"-Main_Frm", "+Tip", "-Tip", "+Main_Frm", "-Main_Frm", "+Tip"}));
}

TEST_F(Input_Test, A_box_that_takes_the_activity_and_gives_it_back_is_not_heard_of) {
  Window.On_Activate = [this] { Heard.emplace_back("+"); };
  Window.On_Deactivate = [this] { Heard.emplace_back("-"); };
  In.Tell_Of_Activity();
  Take();
  {
    const Input::Modal modal(In);
    In.Activity_Went(Window);
    In.Activity_Came(Window);
  }
  In.Tell_Of_Activity();
  EXPECT_EQ(Take(), Words{});
  In.Activity_Went(Window);
  In.Tell_Of_Activity();
  EXPECT_EQ(Take(), Words{"-"});
}

TEST_F(Input_Test, What_has_become_of_the_activity_under_a_box_is_told_after_it) {
  Form other(Backend, "Tip");
  for (Form* const form : {&Window, &other}) {
    form->On_Activate = [this, form] { Heard.push_back("+" + form->Name); };
    form->On_Deactivate = [this, form] { Heard.push_back("-" + form->Name); };
  }
  {
    const Input::Modal modal(In);
    In.Activity_Went(Window);
    Backend.Active = nullptr;
  }
  In.Catch_Up();
  EXPECT_EQ(Take(), Words{"-Main_Frm"});
  {
    const Input::Modal modal(In);
    other.Show(false);
    other.Activate();
    EXPECT_EQ(Take(), Words{});
  }
  In.Catch_Up();
  In.Catch_Up();
  EXPECT_EQ(Take(), Words{"+Tip"});
}

TEST_F(Input_Test, A_window_that_goes_under_a_box_leaves_the_activity_to_the_box) {
  Form owned(Backend, "frmBalloon", toolkit::Form_Border::None, &Window);
  owned.Show(false);
  owned.Activate();
  Backend.Take();
  const Input::Modal modal(In);
  owned.Unload();
  EXPECT_NE(Backend.Active, &Window);
}

TEST_F(Input_Test, A_press_makes_its_window_active_before_anything_else) {
  Form other(Backend, "Tip");
  other.Show(false);
  other.Activate();
  Backend.Take();
  other.On_Deactivate = [&] {
    Heard.emplace_back("tip lost it");
    other.Unload();
  };
  Press(&A, Left(110, 120));
  EXPECT_EQ(Backend.Active, &Window);
  EXPECT_EQ(Take(), (Words{"tip lost it", "A down 1 at 10 20"}));
}

TEST_F(Input_Test, A_press_goes_nowhere_if_its_window_goes_while_it_becomes_active) {
  Form other(Backend, "Tip");
  other.Show(false);
  other.Activate();
  other.On_Deactivate = [&] { Window.Unload(); };
  Press(&A, Left(110, 120));
  EXPECT_EQ(Take(), Words{});
  EXPECT_EQ(In.Mouse_Window(), nullptr);
}

TEST_F(Input_Test, A_window_that_went_is_not_told_that_it_lost_the_activity) {
  Form other(Backend, "Tip");
  other.Show(false);
  other.Activate();
  other.On_Deactivate = [&] { Heard.emplace_back("tip lost it"); };
  In.Activity_Went(other);
  other.Unload();
  In.Tell_Of_Activity();
  EXPECT_EQ(Take(), Words{});
}

TEST_F(Input_Test, Windows_hear_of_the_activity_by_the_end_of_each_step_that_may_move_it) {
  Form other(Backend, "Edit_Frm");
  other.Load();
  other.On_Activate = [&] { Heard.emplace_back("active"); };
  other.On_Deactivate = [&] { Heard.emplace_back("inactive"); };
  In.Activity_Came(other);
  other.Show();
  EXPECT_EQ(Take(), Words{"active"});
  In.Activity_Went(other);
  other.Set_Minimised(true);
  EXPECT_EQ(Take(), Words{"inactive"});
}

TEST_F(Input_Test, A_window_that_went_hears_of_its_activity_anew_and_the_others_do_not) {
  Form other(Backend, "Tip");
  other.Show(false);
  Window.On_Activate = [&] { Heard.emplace_back("active"); };
  other.Unload();
  In.Activity_Came(Window);
  In.Tell_Of_Activity();
  EXPECT_EQ(Take(), Words{});
  Window.Unload();
  Window.Show(false);
  Window.Activate();
  In.Tell_Of_Activity();
  EXPECT_EQ(Take(), Words{"active"});
}

TEST_F(Input_Test, An_owner_becomes_active_when_its_active_window_unloads) {
  Form owned(Backend, "frmBalloon", toolkit::Form_Border::None, &Window);
  Form third(Backend, "Edit_Frm");
  third.Show(false);
  third.Activate();
  owned.Show(false);
  owned.Activate();
  owned.On_Deactivate = [&] { Heard.emplace_back("told on its way"); };
  owned.Unload();
  In.Tell_Of_Activity();
  EXPECT_EQ(Backend.Active, &Window);
  EXPECT_EQ(Take(), Words{});
  third.Activate();
  owned.Show(false);
  owned.Unload();
  EXPECT_EQ(Backend.Active, &third) << "it wasn't active when it went";
}
