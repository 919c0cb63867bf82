#include "calendar/title_text.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/calendar/calendar_world.h"
#include "tests/toolkit/fake_backend.h"

namespace {

class Title_Text_Test : public ::testing::Test {
 protected:
  Title_Text_Test() {
    Clock.Set(2004, 3, 5, 14, 7, 9);  // a Friday, Weekday6
    View(3, 2004);
    Settings.Style = 1;
    Settings.Bar_Time_Format = "H:mm";
    Settings.Bar_Date_Format = "d Month - yyyy";
  }

  void View(int month, int year) {
    Calendar.View_Month = month;
    Calendar.View_Year = year;
  }

  std::string By_Format(const std::string& format) {
    Settings.Bar_Date_Format = format;
    return Bar_Text();
  }

  std::string Bar_Text() {
    return Title.Get_Bar_Text(Settings.Bar_Time, Settings.Bar_Time_Format, Settings.Bar_Date_Format);
  }

  Fake_Clock Clock;
  Fake_Locale Locale;
  settings::Settings Settings{};
  state::Calendar_State Calendar;
  Fake_Backend Backend;
  presentation::Main_Frm Made{Backend};
  calendar::Dates Dates{Clock, Locale};
  calendar::Title_Text Title{Made, Dates, Settings, Calendar};
};

}  // namespace

TEST(Get_Suffix, Goes_by_the_last_digit_but_for_11_to_13) {
  const std::string suffixes[] = {"th", "st", "nd", "rd", "th", "th", "th", "th", "th", "th"};
  for (int day = 0; day <= 200; ++day) {
    const bool teen = day == 11 || day == 12 || day == 13;
    EXPECT_EQ(calendar::Get_Suffix(day), teen ? "th" : suffixes[day % 10]) << day;
  }
}

TEST(Get_Suffix, Takes_111_for_a_number_like_any_other) {
  EXPECT_STREQ(calendar::Get_Suffix(111), "st");
  EXPECT_STREQ(calendar::Get_Suffix(112), "nd");
  EXPECT_STREQ(calendar::Get_Suffix(113), "rd");
  EXPECT_STREQ(calendar::Get_Suffix(32767), "th");
}

TEST_F(Title_Text_Test, Renders_the_present_month_by_each_date_format) {
  EXPECT_EQ(By_Format("Use System Format"), "<2004-03-05>");
  EXPECT_EQ(By_Format("mm/yyyy"), "03-2004");
  EXPECT_EQ(By_Format("dd/mm/yyyy"), "05-03-2004");
  EXPECT_EQ(By_Format("Month - yyyy"), "Month3 - 2004");
  EXPECT_EQ(By_Format("d Month - yyyy"), "5th Month3 - 2004");
  EXPECT_EQ(By_Format("Weekday - d month - yyyy"), "Weekday6 5th Month3 - 2004");
}

TEST_F(Title_Text_Test, Compares_the_format_exactly) {
  for (const char* const format : {"", "d month - yyyy", "MM/yyyy", "Use system format", " mm/yyyy", "mm/yyyy ",
                                   "Weekday - d Month - yyyy", "yyyy"})
    EXPECT_EQ(By_Format(format), "") << format;
  Settings.Bar_Time = true;
  EXPECT_EQ(By_Format("yyyy"), "14.07 - ");
}

TEST_F(Title_Text_Test, Puts_the_time_in_front) {
  Settings.Bar_Time = true;
  EXPECT_EQ(Bar_Text(), "14.07 - 5th Month3 - 2004");
  Settings.Bar_Time_Format = "h:mm:ss AM/PM";
  EXPECT_EQ(Bar_Text(), "2.07.09 PM - 5th Month3 - 2004");
  Settings.Bar_Time_Format = "dd/mm";
  EXPECT_EQ(Bar_Text(), "05-03 - 5th Month3 - 2004") << "the present moment, whatever the pattern asks of it";
  Settings.Bar_Time_Format = "";
  EXPECT_EQ(Bar_Text(), " - 5th Month3 - 2004");
}

TEST_F(Title_Text_Test, Composes_anew_by_the_second_only_what_a_second_can_change) {
  const auto title_a_second_later = [this] {
    Title.Write();
    Locale.Names.Date_Separator = "~";
    Clock.Set(2004, 3, 5, 14, 7, 10);
    Title.Keep_Written(Dates.Now());
    Clock.Set(2004, 3, 5, 14, 7, 9);
    Locale.Names.Date_Separator = "-";
    return Made.Which_Month_Lbl.Caption();
  };
  Settings.Bar_Date_Format = "dd/mm/yyyy";
  EXPECT_EQ(title_a_second_later(), "05-03-2004");
  Settings.Bar_Date_Format = "Use System Format";
  EXPECT_EQ(title_a_second_later(), "<2004~03~05>");
  Settings.Bar_Date_Format = "Month - yyyy";
  Settings.Bar_Time = true;
  Settings.Bar_Time_Format = "H:mm:ss";
  EXPECT_EQ(title_a_second_later(), "14.07.10 - Month3 - 2004");
}

TEST_F(Title_Text_Test, Names_another_month_and_its_year_without_time_and_formats) {
  Settings.Bar_Time = true;
  for (const char* const format : {"Use System Format", "mm/yyyy", "no format"}) {
    Settings.Bar_Date_Format = format;
    View(4, 2004);
    EXPECT_EQ(Bar_Text(), "Month4 - 2004");
    View(3, 2005);
    EXPECT_EQ(Bar_Text(), "Month3 - 2005");
  }
  View(12, 100);
  EXPECT_EQ(Bar_Text(), "Month12 - 100") << "a year is a number there";
}

TEST_F(Title_Text_Test, Takes_a_month_that_is_shorter_than_today_for_another_one) {
  for (const int day : {29, 30, 31}) {
    Clock.Set(2003, 1, day);
    View(2, 2003);
    EXPECT_EQ(Bar_Text(), "Month2 - 2003") << day;
    // The day that it runs on to isn't today either.
    Clock.Set(2003, 3, day);
    EXPECT_EQ(Bar_Text(), "Month2 - 2003") << day;
  }
}

TEST_F(Title_Text_Test, Is_month_and_year_alone_in_the_small_style) {
  Settings.Style = 2;
  Settings.Bar_Time = true;
  EXPECT_EQ(By_Format("dd/mm/yyyy"), "Month3 - 2004");
  View(4, 2004);
  EXPECT_EQ(By_Format("dd/mm/yyyy"), "Month4 - 2004");
  View(12, 100);
  EXPECT_EQ(By_Format("dd/mm/yyyy"), "Month12 - 0100") << "a year of four digits there";
  Clock.Set(2004, 1, 31);
  View(2, 2004);
  EXPECT_EQ(By_Format("dd/mm/yyyy"), "Month2 - 2004");
  Clock.Set(2004, 3, 5);
  View(3, 2004);
  Settings.Use_Themes = 1;
  Settings.Use_Theme_Style = 1;
  Calendar.Pack_Box_Style = 2;
  EXPECT_EQ(By_Format("dd/mm/yyyy"), "9.00 - 05-03-2004")
      << "under a pack that rules the style the setting doesn't count";
}

TEST_F(Title_Text_Test, Gives_each_day_its_suffix) {
  for (int day = 1; day <= 31; ++day) {
    Clock.Set(2004, 3, day);
    EXPECT_EQ(Bar_Text(), std::to_string(day) + calendar::Get_Suffix(day) + " Month3 - 2004");
  }
}

TEST_F(Title_Text_Test, Throws_error_5_beyond_the_calendars_years) {
  View(1, 10000);
  EXPECT_EQ(Error_Of([&] { Bar_Text(); }), 5);
  View(12, 99);
  EXPECT_EQ(Error_Of([&] { Bar_Text(); }), 5);
  Clock.Set(9999, 12, 31);
  View(12, 9999);
  EXPECT_EQ(Bar_Text(), "31st Month12 - 9999");
}
