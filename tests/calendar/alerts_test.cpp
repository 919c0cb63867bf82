#include "calendar/alerts.h"

#include <gtest/gtest.h>

#include "tests/calendar/calendar_world.h"
#include "tests/toolkit/fake_backend.h"

namespace {

using Lines = std::vector<std::string>;

class Alerts_Test : public ::testing::Test {
 protected:
  Alerts_Test() {
    Clock.Set(2004, 3, 5);
    Settings.Show_Alerts = 1;
  }

  /// The boxes that a line brings up in a reading of its own.
  Lines Shown_By(const std::string& line) {
    Box.Shown.clear();
    Alerts.Take_Present_Day();
    Alerts.Test(events::Read_Event_Line(line));
    return Box.Shown;
  }

  Fake_Backend Backend;
  toolkit::Form Main_Frm{Backend, "Main_Frm"};
  Fake_Clock Clock;
  Fake_Locale Locale;
  Noting_Box Box;
  settings::Settings Settings{};
  state::Calendar_State Calendar;
  calendar::Dates Dates{Clock, Locale};
  calendar::Alerts Alerts{Dates, Box, Main_Frm, Settings, Calendar};
};

}  // namespace

TEST_F(Alerts_Test, Tells_todays_date_and_the_text_with_single_ampersands) {
  EXPECT_EQ(Shown_By("5/3/2004=Tom && Jane"), Lines{"Meridex: Today: '20040305\r\n\r\nTom & Jane"});
  EXPECT_TRUE(Calendar.Alerted_Today);
}

TEST_F(Alerts_Test, Comes_for_today_in_this_year_or_in_every_year) {
  EXPECT_EQ(Shown_By("5/3/9999=x").size(), 1U);
  Calendar.Alerted_Today = false;
  EXPECT_EQ(Shown_By("5/3/2004=x").size(), 1U);
  Calendar.Alerted_Today = false;
  for (const char* const line : {"5/3/2003=x", "5/3/2005=x", "5/4/2004=x", "6/3/2004=x", "4/3/9999=x", "5/2/9999=x",
                                 "3/5/2004=x", "5/3/4=x", "5/3/0=x"}) {
    EXPECT_EQ(Shown_By(line), Lines()) << line;
    EXPECT_FALSE(Calendar.Alerted_Today) << line;
  }
}

TEST_F(Alerts_Test, Comes_with_the_setting_at_1_alone) {
  for (const int setting : {0, 2, -1}) {
    Settings.Show_Alerts = setting;
    EXPECT_EQ(Shown_By("5/3/2004=x"), Lines()) << setting;
    EXPECT_FALSE(Calendar.Alerted_Today);
  }
}

TEST_F(Alerts_Test, Comes_once_a_day) {
  EXPECT_EQ(Shown_By("5/3/2004=first").size(), 1U);
  EXPECT_EQ(Shown_By("5/3/2004=second"), Lines());
  Clock.Set(2004, 3, 6);
  EXPECT_EQ(Shown_By("6/3/2004=other day"), Lines()) << "it is the date watch that brings alerts back";
}

TEST_F(Alerts_Test, Disables_the_calendar_and_counts_as_shown_when_it_is_closed) {
  bool seen = false;
  Box.While_Open = [&] {
    seen = true;
    EXPECT_FALSE(Main_Frm.Enabled());
    EXPECT_FALSE(Calendar.Alerted_Today);
  };
  Shown_By("5/3/2004=x");
  EXPECT_TRUE(seen);
  EXPECT_TRUE(Main_Frm.Enabled());
  EXPECT_TRUE(Calendar.Alerted_Today);
}

TEST_F(Alerts_Test, Is_off_for_the_day_even_if_a_new_day_began_while_it_was_open) {
  Box.While_Open = [&] {
    Clock.Set(2004, 3, 6);
    Calendar.Alerted_Today = false;
  };
  Shown_By("5/3/2004=x");
  EXPECT_TRUE(Calendar.Alerted_Today);
}

TEST_F(Alerts_Test, Leaves_an_empty_text_empty) {
  EXPECT_EQ(Shown_By("5/3/2004="), Lines{"Meridex: Today: '20040305\r\n\r\n"});
}
