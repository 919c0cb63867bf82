#include "calendar/month_grid.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/basic/error_of.h"
#include "tests/calendar/calendar_world.h"

using basic::Date_Serial;
using basic::Weekday;
using calendar::DaysInMonth;
using calendar::Start_Box;

namespace {

namespace chrono = std::chrono;

/// Sunday 1 to Saturday 7 of the first of a month.
int First_Weekday_Of(int year, int month) {
  const chrono::sys_days day = chrono::year(year) / month / 1;
  return static_cast<int>(chrono::weekday(day).c_encoding()) + 1;
}

int Last_Day_Of(int year, int month) {
  const auto last = chrono::year(year) / month / chrono::last;
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

settings::Settings With_Start_Day(int start_day) {
  settings::Settings settings{};
  settings.Start_Day = start_day;
  return settings;
}

}  // namespace

TEST(Start_Box, Is_the_distance_of_the_first_from_the_first_day_of_the_week) {
  EXPECT_EQ(Start_Box(3, 2004, Weekday::Monday), 0);
  EXPECT_EQ(Start_Box(3, 2004, Weekday::Sunday), 1);
  EXPECT_EQ(Start_Box(3, 2004, Weekday::Tuesday), 6);
}

TEST(Start_Box, Agrees_with_the_standard_library_on_every_month_and_week) {
  for (int year = 1990; year <= 2040; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int first = 1; first <= 7; ++first) {
        int box = 0;  // counted up from the first day of the week, not reckoned
        for (int day = first; day != First_Weekday_Of(year, month); day = day % 7 + 1) ++box;
        EXPECT_EQ(Start_Box(month, year, static_cast<Weekday>(first)), box) << month << '/' << year << ' ' << first;
      }
    }
  }
}

TEST(Start_Box, Leaves_every_month_within_37_boxes) {
  for (int year = 100; year <= 9999; ++year)
    for (int month = 1; month <= 12; ++month)
      ASSERT_LE(Start_Box(month, year, Weekday::Monday).Value() + DaysInMonth(Date_Serial(year, month, 1)), 37);
}

TEST(Start_Box, Throws_error_5_outside_the_years_of_the_calendar) {
  EXPECT_EQ(Error_Of([] { Start_Box(1, 99, Weekday::Monday); }), 5);
  EXPECT_EQ(Error_Of([] { Start_Box(1, 10000, Weekday::Monday); }), 5);
  EXPECT_EQ(Error_Of([] { Start_Box(1, -1, Weekday::Monday); }), 5);
  EXPECT_EQ(Start_Box(12, 9999, Weekday::Wednesday), 0) << "1 December 9999 is a Wednesday";
  EXPECT_EQ(Start_Box(1, 100, Weekday::Friday), 0) << "1 January 100 is a Friday";
}

TEST(DaysInMonth, Knows_leap_years) {
  EXPECT_EQ(DaysInMonth(Date_Serial(2003, 2, 1)), 28);
  EXPECT_EQ(DaysInMonth(Date_Serial(2004, 2, 1)), 29);
  EXPECT_EQ(DaysInMonth(Date_Serial(1900, 2, 1)), 28);
  EXPECT_EQ(DaysInMonth(Date_Serial(2000, 2, 1)), 29);
  EXPECT_EQ(DaysInMonth(Date_Serial(2100, 2, 1)), 28);
}

TEST(DaysInMonth, Goes_over_the_turn_of_the_year) {
  EXPECT_EQ(DaysInMonth(Date_Serial(2004, 12, 1)), 31);
  EXPECT_EQ(DaysInMonth(Date_Serial(9999, 12, 1)), 31) << "the day behind it is none";
  EXPECT_EQ(DaysInMonth(Date_Serial(9999, 12, 31)), 31);
}

TEST(DaysInMonth, Takes_any_day_of_the_month) {
  for (int day = 1; day <= 29; ++day) EXPECT_EQ(DaysInMonth(Date_Serial(2004, 2, day)), 29) << day;
}

TEST(DaysInMonth, Agrees_with_the_standard_library_on_every_month) {
  for (int year = 100; year <= 9999; ++year)
    for (int month = 1; month <= 12; ++month)
      ASSERT_EQ(DaysInMonth(Date_Serial(year, month, 1)), Last_Day_Of(year, month)) << month << '/' << year;
}

TEST(First_Day_Of_Week, Is_the_settings_or_the_locales_for_0) {
  Fake_Clock clock;
  Fake_Locale locale;
  for (int locales = 1; locales <= 7; ++locales) {
    locale.First = static_cast<Weekday>(locales);
    EXPECT_EQ(calendar::Dates(clock, locale).First_Day_Of_Week(With_Start_Day(0)), locale.First);
    for (int own = 1; own <= 7; ++own)
      EXPECT_EQ(calendar::Dates(clock, locale).First_Day_Of_Week(With_Start_Day(own)), static_cast<Weekday>(own));
  }
}

TEST(First_Day_Of_Week, Throws_error_5_for_no_weekday) {
  Fake_Clock clock;
  Fake_Locale locale;
  const calendar::Dates dates(clock, locale);
  for (const int start_day : {-1, 8, 32767, -32768})
    EXPECT_EQ(Error_Of([&] { static_cast<void>(dates.First_Day_Of_Week(With_Start_Day(start_day))); }), 5) << start_day;
}
