// The tick and the desktop's shell: the calendar comes back onto a desktop that has gone and come again.
#include <gtest/gtest.h>

#include "tests/calendar/program_world.h"
#include "toolkit/input.h"

namespace {

class Date_Watch_Test : public ::testing::Test, public Program_World {
 protected:
  Date_Watch_Test() {
    Platform.Shell.Set_Chain(memory::Shell_Chain::Icon_List);
    Platform.Store.Save("Meridex", "Settings", "Show Splash", "0");
  }

  void Consent() { Platform.Store.Save("Meridex", "Desktop", "Modern", "1"); }

  [[nodiscard]] toolkit::Label& Title() {
    for (toolkit::Control* const control : Window("Main_Frm")->Controls())
      if (control->Name == "Which_Month_Lbl") return dynamic_cast<toolkit::Label&>(*control);
    throw std::logic_error("no title");
  }

  [[nodiscard]] bool On_Desktop() { return Platform.Shell.Part_Of_Desktop(Window("Main_Frm")->Handle()); }
};

}  // namespace

TEST_F(Date_Watch_Test, With_the_consent_the_calendar_returns_within_a_second_of_the_shells_restart) {
  Consent();
  Start();
  ASSERT_TRUE(On_Desktop());
  for (int restart = 1; restart <= 3; ++restart) {
    Platform.Shell.Restart();
    EXPECT_FALSE(On_Desktop());
    Pass(1.1);
    EXPECT_TRUE(On_Desktop()) << restart;
  }
}

TEST_F(Date_Watch_Test, So_it_does_where_the_icons_texts_are_kept_clear) {
  Consent();
  Platform.Store.Save("Meridex", "Settings", "Trans Icons", "1");
  Start();
  for (int restart = 1; restart <= 11; ++restart) {
    Platform.Shell.Restart();
    Pass(1.1);
    EXPECT_TRUE(On_Desktop()) << restart;
  }
}

TEST_F(Date_Watch_Test, The_new_desktops_colours_show_at_once) {
  Consent();
  Platform.Store.Save("Meridex", "Colours", "Menu Colour Source", "0");
  Start();
  for (const bool active : {true, false}) {
    Platform.Windows().Activate(active ? Window("Main_Frm") : nullptr);
    Pass(0.2);
    const toolkit::Colour inactive = Title().ForeColor;
    const int back = active ? 7 : 9, text = active ? 8 : 10;
    Platform.Shell.Restart();
    Platform.Shell.Set_Icon_Colours(back, text);
    Pass(1.1);
    ASSERT_TRUE(On_Desktop());
    EXPECT_EQ(Window("Main_Frm")->BackColor(), back);
    EXPECT_EQ(Title().ForeColor(), active ? text : inactive);
  }
}

TEST_F(Date_Watch_Test, A_shell_that_hangs_at_the_start_takes_the_calendar_once_it_goes_on) {
  Consent();
  Platform.Shell.Hang(true);
  Start();
  EXPECT_FALSE(On_Desktop());
  Platform.Shell.Hang(false);
  Pass(1.1);
  EXPECT_TRUE(On_Desktop());
}

TEST_F(Date_Watch_Test, While_the_desktop_stays_the_window_is_moved_once) {
  Consent();
  Start();
  Pass(60);
  EXPECT_EQ(Platform.Shell.Moves(), 1);
}

TEST_F(Date_Watch_Test, A_desktop_that_cannot_show_it_is_asked_once) {
  Consent();
  Platform.Shell.Refuse_Children(true);
  Start();
  Pass(60);
  EXPECT_LE(Platform.Shell.Moves(), 1);
  EXPECT_FALSE(On_Desktop());
}

TEST_F(Date_Watch_Test, A_desktop_that_failed_to_take_it_is_asked_again) {
  Consent();
  Platform.Shell.Fail_Once();
  Start();
  EXPECT_FALSE(On_Desktop());
  Pass(1.1);
  EXPECT_TRUE(On_Desktop());
  EXPECT_EQ(Platform.Shell.Moves(), 2);
}

TEST_F(Date_Watch_Test, The_return_waits_for_the_end_of_an_open_box) {
  Consent();
  Start();
  Platform.Shell.Restart();
  Platform.Message_Box.Prepare(platform::Box_Answer::OK, 5'000'000);
  bool under_box = true;
  Platform.Loop.Dispatch([&] {
    Platform.System().Message_Box.Show("Meridex", "Dentist", platform::Box_Icon::None, platform::Box_Buttons::OK);
    under_box = On_Desktop();
  });
  EXPECT_FALSE(under_box);
  Pass(1.1);
  EXPECT_TRUE(On_Desktop());
}

TEST_F(Date_Watch_Test, And_of_a_held_button) {
  Consent();
  Start();
  Platform.Shell.Restart();
  Platform.User.Press(*Window("Main_Frm"), nullptr, {toolkit::Mouse_Button::Left});
  Pass(5);
  EXPECT_FALSE(On_Desktop());
  Platform.User.Release(*Window("Main_Frm"), nullptr, {toolkit::Mouse_Button::Left});
  Pass(1.1);
  EXPECT_TRUE(On_Desktop());
}

TEST_F(Date_Watch_Test, And_of_an_open_menu) {
  Consent();
  Start();
  Platform.Shell.Restart();
  {
    const toolkit::Input::Menu menu(Platform.Backend().Input);
    Pass(5);
    EXPECT_FALSE(On_Desktop());
  }
  Pass(1.1);
  EXPECT_TRUE(On_Desktop());
}

TEST_F(Date_Watch_Test, Without_the_consent_the_calendar_stays_off_the_new_desktop) {
  Start();
  ASSERT_TRUE(On_Desktop());
  Platform.Shell.Restart();
  Pass(60);
  EXPECT_FALSE(On_Desktop());
  EXPECT_EQ(Platform.Shell.Moves(), 1);
}
