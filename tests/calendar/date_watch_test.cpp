// The tick and the desktop's shell: the calendar comes back onto a desktop that has gone and come again.
#include <gtest/gtest.h>

#include "tests/calendar/program_world.h"

namespace {

class Date_Watch_Test : public ::testing::Test, public Program_World {
 protected:
  Date_Watch_Test() {
    Platform.Shell.Set_Chain(memory::Shell_Chain::Icon_List);
    Platform.Store.Save("Meridex", "Settings", "Show Splash", "0");
  }

  void Consent() { Platform.Store.Save("Meridex", "Desktop", "Modern", "1"); }

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

TEST_F(Date_Watch_Test, Without_the_consent_the_calendar_stays_off_the_new_desktop) {
  Start();
  ASSERT_TRUE(On_Desktop());
  Platform.Shell.Restart();
  Pass(60);
  EXPECT_FALSE(On_Desktop());
  EXPECT_EQ(Platform.Shell.Moves(), 1);
}
