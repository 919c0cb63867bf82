#include "toolkit/reading.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"
#include "toolkit/item_list.h"
#include "toolkit/option_button.h"
#include "toolkit/slider.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

using toolkit::Control;
using toolkit::Hear;
using toolkit::Hear_Part;
using toolkit::Label;
using toolkit::Neighbour;
using toolkit::Role;
using toolkit::Way;

namespace {

class Reading : public ::testing::Test, public Loaded_Form {
 protected:
  Reading() {
    Window.Set_Client_Size(6000, 4500);
    Window.Show();
    Window.Activate();
    In.Tell_Of_Activity();
  }

  static std::string Name(const Control* control) { return control == nullptr ? "none" : control->Name; }

  /// A label of 900 by 300 twips in a grid, as the calendar's boxes are.
  static void Put(Control& control, int column, int row) {
    control.Place({100.0 + column * 1000, 100.0 + row * 400, 900, 300});
  }

  toolkit::Input& In = Backend.Input;
};

}  // namespace

TEST_F(Reading, A_control_is_called_by_its_caption_without_the_accelerators_mark) {
  toolkit::Command_Button button(Window, "Ok_Btn");
  button.Caption = "&Save && close";
  EXPECT_EQ(Hear(button).Name, "Save & close");
  EXPECT_EQ(Hear(button).Accelerator, 'S');
}

TEST_F(Reading, A_label_without_accelerators_is_called_by_its_caption_as_it_stands) {
  Label label(Window, "Label1");
  label.Caption = " R&D ";
  label.Mnemonics = false;
  EXPECT_EQ(Hear(label).Name, "R&D");
  EXPECT_EQ(Hear(label).Accelerator, 0);
}

TEST_F(Reading, A_caption_of_several_lines_is_heard_as_one) {
  Label label(Window, "Label1");
  label.Caption = "Dentist\r\nat nine\r\n";
  EXPECT_EQ(Hear(label).Name, "Dentist at nine");
}

TEST_F(Reading, What_is_entered_is_called_by_the_label_right_before_it) {
  Label label(Window, "Label1");
  toolkit::Text_Box text(Window, "Text1");
  toolkit::Combo_Box list(Window, "Combo1");
  label.Caption = "&Sort by:";
  EXPECT_EQ(Hear(text).Name, "Sort by:");
  EXPECT_EQ(Hear(list).Name, "") << "what stands before that label's own control isn't its name";
}

TEST_F(Reading, What_is_entered_without_a_label_is_called_by_its_frame) {
  Label label(Window, "Label1");
  toolkit::Frame frame(Window, "Frame1");
  label.Caption = "Elsewhere";
  frame.Caption = "Preview";
  toolkit::Slider slider(frame, "Slider1", 1, 12, toolkit::Slide::Across);
  EXPECT_EQ(Hear(slider).Name, "Preview");
}

TEST_F(Reading, A_picture_is_called_by_its_tip) {
  Label label(Window, "Label1");
  toolkit::Image image(Window, "Image1");
  label.Caption = "Version 0.42b";
  image.ToolTipText = "The homepage";
  EXPECT_EQ(Hear(image).Name, "The homepage") << "a label names only what is entered";
}

TEST_F(Reading, The_name_that_the_program_gives_is_asked_when_a_reader_asks) {
  int asked = 0;
  Label label(Window, "Label1");
  label.Caption = "<";
  label.Accessible_Name = [&] { return "Previous month " + std::to_string(++asked); };
  label.Caption = ">";
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(Hear(label).Name, "Previous month 1");
}

TEST_F(Reading, A_kind_tells_what_it_is_and_what_it_holds) {
  toolkit::Text_Box text(Window, "Text1");
  toolkit::Slider slider(Window, "Slider1", 1, 12, toolkit::Slide::Across);
  toolkit::Combo_Box box(Window, "Combo1");
  toolkit::Frame frame(Window, "Frame1");
  const Label label(Window, "Label1");
  text.Text = "Dentist";
  slider.Value = 7;
  box.Add_Item("Minutes");
  box.Select(0);
  EXPECT_EQ(Hear(text).Role, Role::Text_Box);
  EXPECT_EQ(Hear(text).Value, "Dentist");
  EXPECT_EQ(Hear(slider).Value, "7");
  EXPECT_EQ(Hear(box).Role, Role::Drop_Down);
  EXPECT_EQ(Hear(box).Value, "Minutes");
  EXPECT_EQ(Hear(box).Action, "Open");
  EXPECT_EQ(Hear(frame).Role, Role::Group);
  EXPECT_EQ(Hear(label).Value, std::nullopt);
}

TEST_F(Reading, The_program_can_say_what_a_label_is_to_the_user) {
  Label label(Window, "Label1");
  label.Accessible_Role = Role::Cell;
  EXPECT_EQ(Hear(label).Role, Role::Cell);
}

TEST_F(Reading, Ticks_and_options_tell_whether_they_are_on) {
  toolkit::Check_Box box(Window, "Check1");
  toolkit::Option_Button option(Window, "Option1");
  EXPECT_FALSE(Hear(box).Marks.Checked);
  EXPECT_EQ(Hear(box).Action, "Check");
  box.Value = 1;
  option.Value = true;
  EXPECT_TRUE(Hear(box).Marks.Checked);
  EXPECT_EQ(Hear(box).Action, "Uncheck");
  EXPECT_TRUE(Hear(option).Marks.Checked);
}

TEST_F(Reading, The_button_that_Enter_presses_is_the_default_one) {
  toolkit::Command_Button button(Window, "Ok_Btn");
  EXPECT_FALSE(Hear(button).Marks.Default);
  button.Default = true;
  EXPECT_TRUE(Hear(button).Marks.Default);
}

TEST_F(Reading, What_is_hidden_with_its_frame_or_lies_outside_the_window_isnt_seen) {
  toolkit::Frame frame(Window, "Frame1");
  toolkit::Check_Box box(frame, "Check1");
  frame.Place({0, 0, 3000, 3000});
  box.Place({100, 100, 900, 300});
  EXPECT_TRUE(Hear(box).Visible);
  frame.Visible = false;
  EXPECT_FALSE(Hear(box).Visible);
  frame.Visible = true;
  frame.Left = 6000;
  EXPECT_FALSE(Hear(box).Visible);
  frame.Left = 0;
  Window.Hide();
  EXPECT_FALSE(Hear(box).Visible);
  EXPECT_FALSE(Hear(Window).Visible);
}

TEST_F(Reading, What_is_disabled_isnt_available) {
  toolkit::Frame frame(Window, "Frame1");
  toolkit::Check_Box box(frame, "Check1");
  EXPECT_TRUE(Hear(box).Available);
  frame.Enabled = false;
  EXPECT_FALSE(Hear(box).Available);
}

TEST_F(Reading, The_focus_is_told_of_the_active_window_alone) {
  toolkit::Check_Box box(Window, "Check1");
  box.Place({100, 100, 900, 300});
  EXPECT_TRUE(Hear(box).Focusable);
  EXPECT_FALSE(Hear(box).Focused);
  Window.Set_Focus(box);
  Backend.Active = &Window;
  EXPECT_TRUE(Hear(box).Focused);
  EXPECT_FALSE(Hear(Window).Focused) << "the window gives it on";
  Backend.Active = nullptr;
  EXPECT_FALSE(Hear(box).Focused);
}

TEST_F(Reading, The_parts_of_a_strip_are_tabs_and_those_of_a_list_items) {
  toolkit::Tab_Strip strip(Window, "TabStrip1", {"Events", "Style && Position"});
  toolkit::List_Box list(Window, "List1");
  list.Add_Item("one");
  strip.Selected = 2;
  EXPECT_EQ(strip.Part_Count(), 2);
  EXPECT_EQ(Hear_Part(strip, 1).Role, Role::Tab);
  EXPECT_EQ(Hear_Part(strip, 1).Name, "Style & Position");
  EXPECT_TRUE(Hear_Part(strip, 1).Selected);
  EXPECT_FALSE(Hear_Part(strip, 0).Selected);
  EXPECT_EQ(Hear_Part(list, 0).Role, Role::List_Item);
  EXPECT_EQ(Hear_Part(list, 0).Name, "one");
}

TEST_F(Reading, The_items_of_a_drop_down_list_are_heard_and_leave_the_focus_to_it) {
  toolkit::Combo_Box box(Window, "Combo1");
  for (const char* const item : {"Red", "Green"}) box.Add_Item(item);
  box.Select(1);
  Window.Set_Focus(box);
  EXPECT_EQ(box.Part_Count(), 2);
  EXPECT_EQ(Hear_Part(box, 0).Role, Role::List_Item);
  EXPECT_EQ(Hear_Part(box, 1).Name, "Green");
  EXPECT_TRUE(Hear_Part(box, 1).Selected);
  EXPECT_TRUE(Hear(box).Focused);
  EXPECT_FALSE(Hear_Part(box, 1).Focused);
}

TEST_F(Reading, A_control_that_another_speaks_for_isnt_heard_by_itself) {
  Label number(Window, "Box_Lbl"), caption(Window, "Box_Caption_Lbl"), other(Window, "Label1");
  caption.Heard_With = &number;
  EXPECT_EQ(toolkit::Heard_Controls(Window), (std::vector<Control*>{&number, &other}));
  EXPECT_EQ(&toolkit::Speaker_Of(caption), &number);
  EXPECT_EQ(&toolkit::Speaker_Of(other), &other);
}

TEST_F(Reading, The_next_and_the_previous_one_go_over_what_isnt_seen) {
  Label a(Window, "a"), b(Window, "b"), c(Window, "c");
  Put(a, 0, 0), Put(b, 1, 0), Put(c, 2, 0);
  b.Visible = false;
  EXPECT_EQ(Name(Neighbour(Window, &a, Way::Next)), "c");
  EXPECT_EQ(Name(Neighbour(Window, &c, Way::Previous)), "a");
  EXPECT_EQ(Name(Neighbour(Window, &c, Way::Next)), "none");
  EXPECT_EQ(Name(Neighbour(Window, nullptr, Way::Next)), "a");
  EXPECT_EQ(Name(Neighbour(Window, nullptr, Way::Previous)), "c");
}

TEST_F(Reading, From_a_box_of_a_grid_the_four_ways_lead_to_the_boxes_around_it) {
  std::vector<std::unique_ptr<Label>> boxes;
  for (int i = 0; i < 9; ++i) {
    boxes.push_back(std::make_unique<Label>(Window, "box" + std::to_string(i)));
    Put(*boxes.back(), i % 3, i / 3);
  }
  EXPECT_EQ(Name(Neighbour(Window, boxes[4].get(), Way::Left)), "box3");
  EXPECT_EQ(Name(Neighbour(Window, boxes[4].get(), Way::Right)), "box5");
  EXPECT_EQ(Name(Neighbour(Window, boxes[4].get(), Way::Up)), "box1");
  EXPECT_EQ(Name(Neighbour(Window, boxes[4].get(), Way::Down)), "box7");
  EXPECT_EQ(Name(Neighbour(Window, boxes[5].get(), Way::Right)), "none");
  Label same(Window, "same");
  Put(same, 2, 1);
  EXPECT_EQ(Name(Neighbour(Window, boxes[4].get(), Way::Right)), "box5") << "of two as near the first one";
}

TEST_F(Reading, The_readers_click_takes_the_road_of_the_users) {
  Label arrow(Window, "Next_Month_Lbl"), day(Window, "Box_Lbl"), plain(Window, "Label1");
  toolkit::Check_Box box(Window, "Check1");
  Put(arrow, 0, 0), Put(day, 1, 0), Put(box, 2, 0), Put(plain, 3, 0);
  std::string log;
  arrow.On_Mouse_Up = [&](const toolkit::Mouse_Event&) { log += "turned "; };
  day.On_Mouse_Down = [&](const toolkit::Mouse_Event&) { log += "held "; };
  day.On_Double_Click = [&] { log += "edited "; };
  EXPECT_EQ(Hear(arrow).Action, "Press");
  EXPECT_EQ(Hear(day).Action, "Double click");
  EXPECT_EQ(Hear(plain).Action, "");
  toolkit::Act_On(arrow);
  toolkit::Act_On(day);
  toolkit::Act_On(box);
  toolkit::Act_On(plain);
  EXPECT_EQ(log, "turned edited ");
  EXPECT_EQ(box.Value(), 1);
  EXPECT_EQ(In.Mouse_Window(), nullptr) << "and lets the mouse go";
}

TEST_F(Reading, The_reader_can_do_nothing_where_the_user_couldnt) {
  toolkit::Check_Box box(Window, "Check1");
  Put(box, 0, 0);
  {
    const toolkit::Input::Modal message_box(In);
    toolkit::Act_On(box);
    EXPECT_FALSE(Hear(box).Available);
  }
  box.Visible = false;
  toolkit::Act_On(box);
  toolkit::Give_Focus(box);
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(Window.Focused(), nullptr);
}

TEST_F(Reading, The_reader_can_do_nothing_under_a_menu_or_while_a_button_is_held) {
  toolkit::Check_Box box(Window, "Check1");
  toolkit::Tab_Strip strip(Window, "TabStrip1", {"Events", "Colours"});
  Label label(Window, "Label1");
  Put(box, 0, 0), Put(strip, 1, 0), Put(label, 2, 0);
  const auto try_all = [&] {
    toolkit::Act_On(box);
    toolkit::Select_Part(strip, 1);
    EXPECT_FALSE(toolkit::Give_Focus(strip));
  };
  Window.Set_Focus(box);
  {
    const toolkit::Input::Menu menu(In);
    try_all();
  }
  const toolkit::Mouse_Event press{toolkit::Mouse_Button::Left, 2150, 150, false};
  In.Press(Window, &label, press);
  try_all();
  EXPECT_EQ(In.Mouse_Window(), &Window) << "the user's press goes on";
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(strip.Selected(), 1);
  EXPECT_EQ(Window.Focused(), &box);
  In.Release(Window, &label, press);
  toolkit::Act_On(box);
  EXPECT_EQ(box.Value(), 1);
}

TEST_F(Reading, The_reader_makes_a_window_active_where_the_user_could) {
  toolkit::Form other(Backend, "Edit_Frm");
  other.Load();
  other.Show();
  other.Activate();
  {
    const toolkit::Input::Modal message_box(In);
    toolkit::Give_Focus(Window);
  }
  EXPECT_EQ(Backend.Active, &other);
  int told = 0;
  Window.On_Activate = [&] { ++told; };
  toolkit::Give_Focus(Window);
  EXPECT_EQ(Backend.Active, &Window);
  EXPECT_EQ(told, 1);
}

TEST_F(Reading, The_focus_that_the_reader_gives_is_told) {
  toolkit::Check_Box box(Window, "Check1");
  const Label label(Window, "Label1");
  Put(box, 0, 0);
  EXPECT_TRUE(toolkit::Give_Focus(box));
  EXPECT_EQ(Window.Focused(), &box);
  box.Enabled = false;
  EXPECT_FALSE(toolkit::Give_Focus(box));
}

TEST_F(Reading, The_readers_click_may_unload_the_window) {
  toolkit::Command_Button button(Window, "Ok_Btn");
  Put(button, 0, 0);
  button.On_Click = [this] { Window.Unload(); };
  toolkit::Act_On(button);
  EXPECT_FALSE(Window.Loaded());
}

TEST_F(Reading, The_reader_turns_to_a_tab_as_the_user_does) {
  toolkit::Tab_Strip strip(Window, "TabStrip1", {"Events", "Colours"});
  Put(strip, 0, 0);
  toolkit::Select_Part(strip, 1);
  EXPECT_EQ(strip.Selected(), 2);
  toolkit::Select_Part(strip, 2);
  EXPECT_EQ(strip.Selected(), 2) << "there is no third one";
  toolkit::Select_Part(strip, 0);
  EXPECT_EQ(strip.Selected(), 1);
  toolkit::Select_Part(strip, 1);
  strip.Enabled = false;
  toolkit::Select_Part(strip, 0);
  EXPECT_EQ(strip.Selected(), 2);
}

TEST_F(Reading, A_window_is_called_by_its_title_unless_the_program_says_otherwise) {
  Window.Caption = "Meridex Settings";
  EXPECT_EQ(Hear(Window).Name, "Meridex Settings");
  Window.Accessible_Name = [] { return "Today: Dentist"; };
  EXPECT_EQ(Hear(Window).Name, "Today: Dentist");
}
