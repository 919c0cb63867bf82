#include "settings_window/tooltips_tab.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"

using toolkit::Mouse_Button;
using toolkit::Mouse_Event;

namespace {

constexpr std::int64_t tenth = memory::micros_of_a_second / 10;

class Tooltips_Tab_Test : public ::testing::Test {
 protected:
  Tooltips_Tab_Test() {
    Platform.Time.Set_Now({basic::Date_Serial(2004, 3, 5), 9 * 3600 * memory::micros_of_a_second});
    Window.Move(1000, 2000);
    Window.Show();
  }

  void Press(toolkit::Label& label, Mouse_Button button = Mouse_Button::Left) {
    Platform.User.Press(Window, &label, {button, 0, 0});
  }

  void Release_After(std::int64_t micros, toolkit::Label& label, Mouse_Button button = Mouse_Button::Left) {
    Platform.Time.Schedule(Platform.Time.Elapsed() + micros, [this, &label, button] {
      Platform.User.Release(Window, &label, {button, 0, 0});
    });
  }

  [[nodiscard]] toolkit::Form* Balloon() const { return Platform.Windows().Find("frmBalloon"); }

  static std::string Caption_Of(const toolkit::Form& form, std::string_view name) {
    for (const toolkit::Control* const control : form.Controls())
      if (control->Name == name) return dynamic_cast<const toolkit::Label&>(*control).Caption;
    return "absent";
  }

  [[nodiscard]] std::string Options() const {
    std::string on;
    for (int i = 0; i < Tab.Tips_Opt.Count(); ++i) on += Tab.Tips_Opt[i].Value ? '1' : '0';
    return on;
  }

  memory::Memory_Platform Platform;
  state::Calendar_State Calendar;
  calendar::Dates Dates{Platform.Clock, Platform.Locale};
  platform::Waits Waits{Platform.Loop, Platform.Clock};
  presentation::Main_Frm Main_Frm{Platform.Backend()};
  int Months_Rebuilt = 0;
  tooltips::Balloons Balloons{
      Platform.Backend(), Platform.Screen, Main_Frm, Calendar, {[this] { ++Months_Rebuilt; }, [] {}}};
  toolkit::Form Window{Platform.Backend(), "Settings_Frm"};
  toolkit::Frame Page{Window, "Settings_Fra", 4};
  settings_window::Tooltips_Tab Tab{Page, Dates, Balloons, Waits, Calendar};
};

}  // namespace

TEST_F(Tooltips_Tab_Test, Begins_with_the_standard_tips_and_a_text_of_its_own) {
  EXPECT_EQ(Options(), "010");
  EXPECT_EQ(Tab.Choice(), 1);
  EXPECT_EQ(Tab.TipsTrigger_Lbl.Caption(), "Hover Over...");
  EXPECT_EQ(Tab.TipExample_Lbl.ToolTipText(), "This is an example.");
  EXPECT_EQ(Tab.TipBoxExample_Lbl.ToolTipText(), "This is an example.");
  EXPECT_TRUE(Tab.TipsNotes_Lbl.Caption().ends_with("then it may get cut off."));
}

TEST_F(Tooltips_Tab_Test, The_example_has_the_boxes_border_and_font) {
  EXPECT_TRUE(Tab.TipBoxExample_Lbl.Fixed_Border);
  EXPECT_EQ(Tab.TipBoxExample_Lbl.FontName(), "Arial");
  EXPECT_EQ(Tab.TipBoxExample_Lbl.FontSize(), 9);
  EXPECT_TRUE(Tab.TipBoxExample_Lbl.FontBold);
}

TEST_F(Tooltips_Tab_Test, To_show_the_choice_that_is_on_changes_nothing) {
  Tab.Show_Choice(1);
  EXPECT_TRUE(Tab.TipsNotes_Lbl.Caption().ends_with("then it may get cut off."));
}

TEST_F(Tooltips_Tab_Test, Each_choice_explains_itself) {
  Tab.Show_Choice(0);
  EXPECT_EQ(Options(), "100");
  EXPECT_EQ(Tab.Choice(), 0);
  EXPECT_EQ(Tab.TipsTrigger_Lbl.Caption(), "");
  EXPECT_EQ(Tab.TipExample_Lbl.ToolTipText(), "");
  EXPECT_EQ(Tab.TipBoxExample_Lbl.ToolTipText(), "");
  EXPECT_EQ(Tab.TipsNotes_Lbl.Caption(), "Neither of the two Tooltip styles will be used.");
  Tab.Show_Choice(1);
  EXPECT_EQ(Options(), "010");
  EXPECT_EQ(Tab.TipsTrigger_Lbl.Caption(), "Hover Over...");
  EXPECT_EQ(Tab.TipExample_Lbl.ToolTipText(), "This is an example.");
  EXPECT_EQ(Tab.TipBoxExample_Lbl.ToolTipText(), "This is an example.");
  EXPECT_EQ(
      Tab.TipsNotes_Lbl.Caption(),
      "The standard Tooltips appear when you hover your mouse over it for a short length of time. The problem with "
      "the standard Tooltips is that they are only one line high. This means if the event is too long then it might "
      "get cut off.");
  Tab.Show_Choice(2);
  EXPECT_EQ(Options(), "001");
  EXPECT_EQ(Tab.Choice(), 2);
  EXPECT_EQ(Tab.TipsTrigger_Lbl.Caption(), "Hold Left Mouse Button");
  EXPECT_EQ(Tab.TipExample_Lbl.ToolTipText(), "");
  EXPECT_EQ(Tab.TipBoxExample_Lbl.ToolTipText(), "");
  EXPECT_TRUE(Tab.TipsNotes_Lbl.Caption().starts_with("These balloon Tooltips don't pop up when you hover over them"));
  EXPECT_TRUE(Tab.TipsNotes_Lbl.Caption().ends_with("for about half a second over the box."));
}

TEST_F(Tooltips_Tab_Test, A_number_that_no_option_has_turns_none_on) {
  Tab.Show_Choice(2);
  for (const int number : {-1, 3, 32767, -32768}) Tab.Show_Choice(number);
  EXPECT_EQ(Tab.Choice(), 2);
}

TEST_F(Tooltips_Tab_Test, Only_a_left_press_with_the_balloons_chosen_waits) {
  for (const int choice : {0, 1}) {
    Tab.Show_Choice(choice);
    Calendar.Mouse_Released = true;
    const std::int64_t before = Platform.Time.Elapsed();
    Press(Tab.TipExample_Lbl);
    EXPECT_EQ(Platform.Time.Elapsed(), before);
    EXPECT_TRUE(Calendar.Mouse_Released);
    Platform.User.Release(Window, &Tab.TipExample_Lbl, {Mouse_Button::Left, 0, 0});
  }
  Tab.Show_Choice(2);
  for (const Mouse_Button button : {Mouse_Button::Right, Mouse_Button::Middle}) {
    const std::int64_t before = Platform.Time.Elapsed();
    Press(Tab.TipBoxExample_Lbl, button);
    EXPECT_EQ(Platform.Time.Elapsed(), before);
    Platform.User.Release(Window, &Tab.TipBoxExample_Lbl, {button, 0, 0});
  }
  EXPECT_EQ(Balloon(), nullptr);
}

TEST_F(Tooltips_Tab_Test, A_held_press_on_either_label_opens_the_balloon_beside_the_example) {
  Tab.Show_Choice(2);
  for (toolkit::Label* const label : {&Tab.TipExample_Lbl, &Tab.TipBoxExample_Lbl}) {
    const std::int64_t before = Platform.Time.Elapsed();
    Press(*label);
    EXPECT_EQ(Platform.Time.Elapsed() - before, 3 * tenth);
    ASSERT_NE(Balloon(), nullptr);
    EXPECT_TRUE(Balloon()->Visible());
    EXPECT_EQ(Balloon()->Owner, &Window);
    EXPECT_EQ(Balloon()->Left(), 1000 + 4740);
    EXPECT_EQ(Balloon()->Top(), 2000 + 2730);
    EXPECT_EQ(Balloon()->FontName(), "Tahoma");
    EXPECT_EQ(Caption_Of(*Balloon(), "lblTitle"), "05/03/2004");
    EXPECT_EQ(Caption_Of(*Balloon(), "lblText"), "This is an example.");
    EXPECT_FALSE(Calendar.Mouse_Released);
    Platform.User.Release(Window, label, {Mouse_Button::Left, 0, 0});
    EXPECT_TRUE(Calendar.Mouse_Released);
    Window.Activate();
    EXPECT_EQ(Balloon(), nullptr);
  }
  EXPECT_EQ(Months_Rebuilt, 2);
}

TEST_F(Tooltips_Tab_Test, A_release_of_any_button_within_the_wait_shows_no_balloon) {
  Tab.Show_Choice(2);
  Release_After(3 * tenth - 1, Tab.TipExample_Lbl);
  Press(Tab.TipExample_Lbl);
  EXPECT_EQ(Balloon(), nullptr);
  Calendar.Mouse_Released = false;
  Press(Tab.TipExample_Lbl, Mouse_Button::Right);
  Platform.User.Release(Window, &Tab.TipExample_Lbl, {Mouse_Button::Right, 0, 0});
  EXPECT_TRUE(Calendar.Mouse_Released);
}

TEST_F(Tooltips_Tab_Test, The_place_follows_the_window_and_is_rounded) {
  Tab.Show_Choice(2);
  Window.Move(6735, 4897.5);
  Tab.Example_Tooltip();
  EXPECT_EQ(Balloon()->Left(), 11475);
  EXPECT_EQ(Balloon()->Top(), 7628) << "a half goes to the even number";
  Window.Scale = toolkit::Scale_Unit::Pixels;
  Window.Move(-2000, -3000);
  Tab.Example_Tooltip();
  EXPECT_EQ(Balloon()->Left(), 2740) << "whatever the window counts in";
  EXPECT_EQ(Balloon()->Top(), -270);
}

TEST_F(Tooltips_Tab_Test, A_window_that_closes_within_the_wait_shows_no_balloon) {
  Tab.Show_Choice(2);
  bool waiting = false;
  Platform.Time.Schedule(Platform.Time.Elapsed() + tenth, [this, &waiting] {
    waiting = Tab.Waiting();
    Window.Unload();
  });
  EXPECT_FALSE(Tab.Waiting());
  Press(Tab.TipExample_Lbl);
  EXPECT_TRUE(waiting);
  EXPECT_FALSE(Tab.Waiting());
  EXPECT_EQ(Balloon(), nullptr);
  EXPECT_EQ(Months_Rebuilt, 0);
}

TEST_F(Tooltips_Tab_Test, Waits_until_the_last_of_several_presses_has_ended) {
  Tab.Show_Choice(2);
  bool waiting = false;
  Platform.Time.Schedule(Platform.Time.Elapsed() + tenth, [this, &waiting] {
    Press(Tab.TipBoxExample_Lbl);
    waiting = Tab.Waiting();
  });
  Press(Tab.TipExample_Lbl);
  EXPECT_TRUE(waiting) << "the inner one has ended, the outer one hasn't";
  EXPECT_FALSE(Tab.Waiting());
}

TEST_F(Tooltips_Tab_Test, A_program_that_ends_within_the_wait_leaves_nothing_waiting) {
  Tab.Show_Choice(2);
  Platform.Time.Schedule(Platform.Time.Elapsed() + tenth, [this] { Platform.Loop.Quit(); });
  EXPECT_THROW(Press(Tab.TipExample_Lbl), platform::Program_Quit);
  EXPECT_FALSE(Tab.Waiting());
  EXPECT_EQ(Balloon(), nullptr);
}

TEST_F(Tooltips_Tab_Test, The_balloon_goes_with_the_window) {
  Tab.Show_Choice(2);
  Tab.Example_Tooltip();
  EXPECT_NE(Balloon(), nullptr);
  Window.Unload();
  EXPECT_EQ(Balloon(), nullptr);
  EXPECT_FALSE(Calendar.Tip_Showing);
}
