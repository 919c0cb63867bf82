#include "toolkit/form.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"

using toolkit::Form;
using toolkit::Form_Border;
using toolkit::Region;
using toolkit::Scale_Unit;

TEST(Form, Makes_its_window_on_loading_and_not_before) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  form.Caption = "Edit";
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(backend.Take(), Words{});
  form.Load();
  EXPECT_TRUE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(backend.Take(), Words{"make Edit_Frm"});
}

TEST(Form, Runs_its_load_once_with_the_window_made) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  int loads = 0;
  form.On_Load = [&] {
    ++loads;
    EXPECT_TRUE(form.Loaded());
    form.Load();
  };
  form.Load();
  form.Load();
  form.Show();
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(backend.Take(), (Words{"make Edit_Frm", "show active"}));
}

TEST(Form, Loads_again_after_an_unload) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  int loads = 0;
  form.On_Load = [&] { ++loads; };
  form.Load();
  form.Unload();
  form.Load();
  EXPECT_EQ(loads, 2);
  EXPECT_EQ(backend.Windows, 1);
  form.Unload();
  EXPECT_EQ(backend.Windows, 0) << "and unloads again";
}

TEST(Form, Loads_on_being_shown) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  form.Show(false);
  EXPECT_TRUE(form.Visible());
  EXPECT_EQ(backend.Take(), (Words{"make Edit_Frm", "show"}));
}

TEST(Form, Comes_to_the_front_at_each_showing) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  form.Show();
  backend.Take();
  form.Show();
  EXPECT_EQ(backend.Take(), Words{"show active"});
}

TEST(Form, Hides_only_if_it_is_shown) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  form.Hide();
  form.Load();
  form.Hide();
  EXPECT_EQ(backend.Take(), Words{"make Edit_Frm"});
  form.Show();
  form.Hide();
  form.Hide();
  EXPECT_FALSE(form.Visible());
  EXPECT_TRUE(form.Loaded());
  EXPECT_EQ(backend.Take(), (Words{"show active", "hide"}));
}

TEST(Form, Removes_its_window_on_unloading_and_only_once) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  int unloads = 0;
  form.On_Unload = [&] {
    ++unloads;
    EXPECT_TRUE(form.Loaded());
  };
  form.Unload();
  EXPECT_EQ(unloads, 0) << "it wasn't loaded";
  form.Show();
  form.Unload();
  form.Unload();
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(backend.Windows, 0);
}

TEST(Form, Bears_an_unload_inside_its_own_unload) {
  Fake_Backend backend;
  Form form(backend, "Main_Frm");
  int unloads = 0;
  form.On_Unload = [&] {
    if (++unloads < 5) form.Unload();
  };
  form.Load();
  form.Unload();
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(backend.Windows, 0);
}

TEST(Form, Bears_an_unload_inside_its_own_load) {
  Fake_Backend backend;
  Form form(backend, "Main_Frm");
  form.On_Load = [&] { form.Unload(); };
  form.Show();
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(backend.Take(), (Words{"make Main_Frm", "remove"}));
}

TEST(Form, Bears_an_unload_inside_the_click_of_its_button) {
  Loaded_Form form;
  toolkit::Command_Button button(form.Window, "OK_Btn");
  button.On_Click = [&] { form.Window.Unload(); };
  button.User_Click();
  EXPECT_FALSE(form.Window.Loaded());
  EXPECT_EQ(form.Backend.Windows, 0);
}

TEST(Form, Takes_its_window_along_when_it_goes) {
  Fake_Backend backend;
  {
    Form form(backend, "Edit_Frm");
    form.Show();
    EXPECT_EQ(backend.Windows, 1);
  }
  EXPECT_EQ(backend.Windows, 0);
}

TEST(Form, Takes_the_windows_that_it_owns_along_when_it_unloads) {
  Fake_Backend backend;
  Form owner(backend, "Settings_Frm"), other(backend, "Edit_Frm");
  Form first(backend, "frmBalloon", Form_Border::None, &owner),
      second(backend, "frmBalloon", Form_Border::None, &owner);
  for (Form* const form : {&owner, &other, &first, &second}) form->Load();
  first.On_Unload = [&] { second.Unload(); };
  owner.On_Unload = [&] { EXPECT_TRUE(first.Loaded()) << "which it may still ask for"; };
  owner.Unload();
  EXPECT_FALSE(first.Loaded());
  EXPECT_FALSE(second.Loaded());
  EXPECT_FALSE(owner.Loaded());
  EXPECT_TRUE(other.Loaded());
}

TEST(Form, Hears_of_no_activity_while_it_unloads) {
  Fake_Backend backend;
  Form owner(backend, "Settings_Frm");
  Form owned(backend, "frmBalloon", Form_Border::None, &owner);
  owner.Show();
  owned.Show();
  backend.Active = &owned;
  int activations = 0;
  owner.On_Activate = [&] { ++activations; };
  // The system gives the activity back to the owner when the owned window goes.
  owned.On_Unload = [&] { backend.Input.Activity_Came(owner); };
  owner.Unload();
  backend.Input.Tell_Of_Activity();
  EXPECT_EQ(activations, 0);
}

TEST(Form, Unloads_by_its_close_box_unless_told_otherwise) {
  Loaded_Form form;
  int closes = 0;
  form.Window.On_Close = [&] { ++closes; };
  form.Window.Close_Requested();
  EXPECT_EQ(closes, 1);
  EXPECT_TRUE(form.Window.Loaded());
  form.Window.On_Close = nullptr;
  form.Window.Close_Requested();
  EXPECT_FALSE(form.Window.Loaded());
}

TEST(Form, Tells_of_its_changed_properties_once_and_of_the_same_values_never) {
  Loaded_Form form;
  form.Window.Caption = "Meridex";
  form.Window.BackColor = 0;
  form.Window.Enabled = false;
  form.Window.MousePointer = toolkit::Pointer::Four_Arrows;
  form.Window.FontSize = 10.0;
  form.Window.Outline_Corner = 26;
  const Words told = {"form caption", "form appearance", "form enabled",
                      "form pointer", "form appearance", "form appearance"};
  EXPECT_EQ(form.Backend.Take(), told);
  form.Window.Caption = "Meridex";
  form.Window.BackColor = 0;
  form.Window.Enabled = false;
  form.Window.MousePointer = toolkit::Pointer::Four_Arrows;
  form.Window.FontSize = 10.0;
  form.Window.Outline_Corner = 26;
  EXPECT_EQ(form.Backend.Take(), Words{});
}

TEST(Form, Runs_its_resize_after_the_window_has_its_new_size) {
  Loaded_Form form;
  Words told;
  form.Window.On_Resize = [&] {
    told = form.Backend.Take();
    EXPECT_EQ(form.Window.Width(), 4500.0);
  };
  form.Window.Width = 4500.0;
  EXPECT_EQ(told, Words{"form bounds"});
}

TEST(Form, Resizes_nothing_when_its_size_stays) {
  Loaded_Form form;
  form.Window.Width = 4500.0;
  int resizes = 0;
  form.Window.On_Resize = [&] { ++resizes; };
  form.Window.Width = 4500.0;
  EXPECT_EQ(resizes, 0);
}

TEST(Form, Keeps_its_place_in_twips_whatever_the_unit) {
  Loaded_Form form;
  form.Window.Scale = Scale_Unit::Pixels;
  form.Window.Left = 300.0;
  form.Window.Scale = Scale_Unit::Twips;
  EXPECT_EQ(form.Window.Left(), 300.0);
}

TEST(Form, Has_a_client_area_of_its_whole_size_without_a_border) {
  Loaded_Form form;
  form.Window.Width = 4500.0;
  form.Window.Height = 3600.0;
  EXPECT_EQ(form.Window.Client_Width(), 4500.0);
  EXPECT_EQ(form.Window.Client_Height(), 3600.0);
  form.Window.Scale = Scale_Unit::Pixels;
  EXPECT_EQ(form.Window.Client_Width(), 300.0);
  EXPECT_EQ(form.Window.Client_Height(), 300.0);
}

TEST(Form, Leaves_its_frame_out_of_the_client_area) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm", Form_Border::Fixed_Dialog);
  form.Set_Client_Size(3000, 2000);
  EXPECT_EQ(form.Width(), 3090.0);
  EXPECT_EQ(form.Height(), 2375.0);
  EXPECT_EQ(form.Client_Width(), 3000.0);
  EXPECT_EQ(form.Client_Height(), 2000.0);
}

TEST(Form, Moves_in_one_step) {
  Loaded_Form form;
  form.Window.Move(300, 200);
  EXPECT_EQ(form.Backend.Take(), Words{"form bounds"});
  EXPECT_EQ(form.Window.Left(), 300.0);
  EXPECT_EQ(form.Window.Top(), 200.0);
  form.Window.Move(300, 200);
  EXPECT_EQ(form.Backend.Take(), Words{});
  form.Window.Move(300, 201);
  EXPECT_EQ(form.Backend.Take(), Words{"form bounds"});
}

TEST(Form, Stands_in_the_middle_of_the_screen_when_told_to) {
  Loaded_Form form;
  form.Window.Width = 4000.0;
  form.Window.Height = 1000.0;
  form.Window.Centre_On_Screen();
  EXPECT_EQ(form.Window.Left(), 4000.0);
  EXPECT_EQ(form.Window.Top(), 4000.0);
}

TEST(Form, Passes_its_region_to_a_window_that_is_there) {
  Loaded_Form form;
  form.Window.Set_Region(Region({{0, 0, 1, 1}, {2, 0, 3, 1}}));
  EXPECT_EQ(form.Backend.Take(), (Words{"region of 2"}));
  form.Window.Set_Round_Region(30, 20, 5);
  EXPECT_EQ(form.Backend.Take(), Words{"round region 30 20 5"});
  EXPECT_EQ(form.Window.Handle(), 4711U);
  form.Backend.Minimised = true;
  EXPECT_TRUE(form.Window.Minimised());
}

TEST(Form, Bears_all_requests_without_a_window) {
  Fake_Backend backend;
  Form form(backend, "Edit_Frm");
  toolkit::Text_Box box(form, "A_Txt");
  backend.Minimised = true;
  form.Set_Region(Region());
  form.Set_Round_Region(30, 20, 5);
  form.Set_Focus(box);
  EXPECT_FALSE(form.Minimised());
  EXPECT_EQ(form.Handle(), 0U);
  EXPECT_EQ(backend.Take(), Words{});
}

TEST(Form, Measures_texts_in_its_own_font) {
  Loaded_Form form;
  EXPECT_EQ(form.Window.Text_Width("abcd"), 330.0);
  form.Window.FontSize = 10.0;
  EXPECT_EQ(form.Window.Text_Width("abcd"), 400.0);
  EXPECT_EQ(form.Window.Longest_Beginning("abcd", 300), 2U);
  EXPECT_EQ(form.Window.Longest_Beginning("abcd", 301), 3U);
  form.Window.FontBold = true;
  EXPECT_EQ(form.Window.Text_Width("abcd"), 800.0);
}

TEST(Form, Reports_that_it_became_active_or_inactive) {
  Loaded_Form form;
  toolkit::Input& input = form.Backend.Input;
  input.Activity_Came(form.Window);
  input.Activity_Went(form.Window);
  input.Tell_Of_Activity();
  Words heard;
  form.Window.On_Activate = [&] { heard.emplace_back("active"); };
  form.Window.On_Deactivate = [&] { heard.emplace_back("inactive"); };
  input.Activity_Came(form.Window);
  input.Activity_Went(form.Window);
  EXPECT_EQ(heard, Words{});
  input.Tell_Of_Activity();
  EXPECT_EQ(heard, (Words{"active", "inactive"}));
}
