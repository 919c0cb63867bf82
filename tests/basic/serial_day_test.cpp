#include "basic/serial_day.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

#include "tests/basic/error_of.h"

using basic::Civil_Date;
using basic::Civil_From_Serial;
using basic::Date_Serial;
using basic::first_day;
using basic::last_day;
using basic::Moment;
using basic::Place_In_Week;
using basic::Second_Count;
using basic::Serial_Day;
using basic::Weekday;
using basic::Weekday_At;
using basic::Weekday_Of;

namespace {

constexpr std::chrono::sys_days day_zero =
    std::chrono::year_month_day(std::chrono::year(1899), std::chrono::month(12), std::chrono::day(30));

/// The standard library's word on a date whose month and day may run over or under.
std::int64_t Serial_By_Chrono(int year, int month, int day) {
  const std::chrono::year_month first =
      std::chrono::year_month(std::chrono::year(year), std::chrono::month(1)) + std::chrono::months(month - 1);
  return (std::chrono::sys_days(first / 1) + std::chrono::days(day - 1) - day_zero).count();
}

bool Naive_Leap_Year(int year) { return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0); }

int Naive_Month_Length(int year, int month) {
  switch (month) {
    case 2: return Naive_Leap_Year(year) ? 29 : 28;
    case 4:
    case 6:
    case 9:
    case 11: return 30;
    default: return 31;
  }
}

int Error_Of_Serial(int year, int month, int day) {
  return Error_Of([=] { Date_Serial(year, month, day); });
}

}  // namespace

TEST(Serial_Day, Starts_at_30_December_1899) {
  EXPECT_EQ(Date_Serial(1899, 12, 30), 0);
  EXPECT_EQ(Date_Serial(1899, 12, 31), 1);
  EXPECT_EQ(Date_Serial(1900, 1, 1), 2);
  EXPECT_EQ(Date_Serial(1970, 1, 1), 25569);
  EXPECT_EQ(Date_Serial(2000, 1, 1), 36526);
  EXPECT_EQ(Date_Serial(2004, 3, 5), 38051);
}

TEST(Serial_Day, Reaches_from_the_year_100_to_the_year_9999) {
  EXPECT_EQ(Date_Serial(100, 1, 1), first_day);
  EXPECT_EQ(Date_Serial(9999, 12, 31), last_day);
  EXPECT_EQ(first_day, -657434);
  EXPECT_EQ(last_day, 2958465);
}

TEST(Serial_Day, Agrees_with_the_standard_library_on_every_day) {
  for (Serial_Day serial = first_day; serial <= last_day; ++serial) {
    const std::chrono::sys_days day = day_zero + std::chrono::days(serial);
    const std::chrono::year_month_day date(day);
    const Civil_Date expected{static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                              static_cast<int>(static_cast<unsigned>(date.day()))};
    ASSERT_EQ(Civil_From_Serial(serial), expected) << serial;
    ASSERT_EQ(Date_Serial(expected.Year, expected.Month, expected.Day), serial);
    ASSERT_EQ(static_cast<unsigned>(Weekday_Of(serial)), std::chrono::weekday(day).c_encoding() + 1) << serial;
  }
}

TEST(Serial_Day, Agrees_with_counting_day_by_day_through_all_years) {
  Serial_Day serial = first_day;
  int weekday = 6;  // 1 January 100 was a Friday
  for (int year = 100; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= Naive_Month_Length(year, month); ++day) {
        ASSERT_EQ(Date_Serial(year, month, day), serial);
        ASSERT_EQ(Civil_From_Serial(serial), (Civil_Date{year, month, day}));
        ASSERT_EQ(static_cast<int>(Weekday_Of(serial)), weekday) << serial;
        weekday = weekday == 7 ? 1 : weekday + 1;
        ++serial;
      }
    }
  }
  EXPECT_EQ(serial, last_day + 1);
}

TEST(Date_Serial, Lets_the_month_run_over_and_under) {
  EXPECT_EQ(Date_Serial(2004, 13, 1), Date_Serial(2005, 1, 1));
  EXPECT_EQ(Date_Serial(2004, 12 + 15, 7), Date_Serial(2006, 3, 7));
  EXPECT_EQ(Date_Serial(2004, 0, 1), Date_Serial(2003, 12, 1));
  EXPECT_EQ(Date_Serial(2004, -11, 1), Date_Serial(2003, 1, 1));
  EXPECT_EQ(Date_Serial(2004, -12, 1), Date_Serial(2002, 12, 1));
}

TEST(Date_Serial, Lets_the_day_run_over_and_under) {
  EXPECT_EQ(Date_Serial(2004, 3, 0), Date_Serial(2004, 2, 29));
  EXPECT_EQ(Date_Serial(2003, 3, 0), Date_Serial(2003, 2, 28));
  EXPECT_EQ(Date_Serial(2004, 2, 30), Date_Serial(2004, 3, 1));
  EXPECT_EQ(Date_Serial(2003, 2, 29), Date_Serial(2003, 3, 1));
  EXPECT_EQ(Date_Serial(2004, 13, 0), Date_Serial(2004, 12, 31)) << "the last of December by the next month's day 0";
  EXPECT_EQ(Date_Serial(2004, 1, 366), Date_Serial(2004, 12, 31));
  EXPECT_EQ(Date_Serial(2004, 1, -1), Date_Serial(2003, 12, 30));
}

TEST(Date_Serial, Knows_the_leap_years_of_the_centuries) {
  EXPECT_EQ(Date_Serial(1900, 2, 29), Date_Serial(1900, 3, 1));
  EXPECT_EQ(Date_Serial(2000, 2, 29) + 1, Date_Serial(2000, 3, 1));
  EXPECT_EQ(Date_Serial(2100, 2, 29), Date_Serial(2100, 3, 1));
  EXPECT_EQ(Date_Serial(400, 2, 29) + 1, Date_Serial(400, 3, 1));
}

TEST(Date_Serial, Agrees_with_the_standard_library_on_months_and_days_that_run_over) {
  for (const int year : {102, 1599, 1600, 1899, 1900, 1999, 2000, 2004, 9990}) {
    for (int month = -10; month <= 60; ++month) {
      for (int day = -40; day <= 400; day += 3)
        ASSERT_EQ(Date_Serial(year, month, day), Serial_By_Chrono(year, month, day))
            << year << ' ' << month << ' ' << day;
    }
  }
}

TEST(Date_Serial, Reaches_its_years_from_dates_far_outside) {
  for (const int year : {-401, -400, -5, -1, 0, 1, 99, 10000, 10400}) {
    for (const int month : {-30, -12, -1, 0, 1, 2, 3, 12, 13, 24}) {
      const int day = year < 5000 ? 300'000 : -300'000;
      ASSERT_EQ(Date_Serial(year, month, day), Serial_By_Chrono(year, month, day)) << year << ' ' << month;
    }
  }
}

TEST(Date_Serial, Throws_error_5_outside_its_years) {
  EXPECT_EQ(Error_Of_Serial(100, 1, 1), 0);
  EXPECT_EQ(Error_Of_Serial(100, 1, 0), 5);
  EXPECT_EQ(Error_Of_Serial(100, 0, 1), 5);
  EXPECT_EQ(Error_Of_Serial(99, 12, 31), 5);
  EXPECT_EQ(Error_Of_Serial(99, 12, 32), 0) << "the day that results counts, not the year that was given";
  EXPECT_EQ(Error_Of_Serial(99, 13, 1), 0);
  EXPECT_EQ(Error_Of_Serial(9999, 12, 31), 0);
  EXPECT_EQ(Error_Of_Serial(9999, 12, 32), 5);
  EXPECT_EQ(Error_Of_Serial(9999, 13, 1), 5);
  EXPECT_EQ(Error_Of_Serial(9999, 13, 0), 0);
  EXPECT_EQ(Error_Of_Serial(10000, 1, 0), 0);
  EXPECT_EQ(Error_Of_Serial(0, 1, 1), 5);
  EXPECT_EQ(Error_Of_Serial(-1, 1, 1), 5);
}

TEST(Date_Serial, Throws_error_5_for_the_largest_numbers_too) {
  constexpr int high = std::numeric_limits<int>::max();
  constexpr int low = std::numeric_limits<int>::min();
  for (const int year : {low, 2000, high})
    for (const int month : {low, 1, high})
      for (const int day : {low, 1, high}) {
        const bool inside = year == 2000 && month == 1 && day == 1;
        EXPECT_EQ(Error_Of_Serial(year, month, day), inside ? 0 : 5) << year << ' ' << month << ' ' << day;
      }
}

TEST(Weekday_Of, Knows_some_days_by_name) {
  EXPECT_EQ(Weekday_Of(0), Weekday::Saturday);
  EXPECT_EQ(Weekday_Of(Date_Serial(2004, 3, 1)), Weekday::Monday);
  EXPECT_EQ(Weekday_Of(Date_Serial(2004, 3, 5)), Weekday::Friday);
  EXPECT_EQ(Weekday_Of(Date_Serial(1582, 10, 15)), Weekday::Friday);
  EXPECT_EQ(Weekday_Of(-1), Weekday::Friday);
  EXPECT_EQ(Weekday_Of(-7), Weekday::Saturday);
}

TEST(Place_In_Week, Counts_from_the_first_day_of_the_week) {
  EXPECT_EQ(Place_In_Week(Weekday::Monday, Weekday::Monday), 1);
  EXPECT_EQ(Place_In_Week(Weekday::Monday, Weekday::Sunday), 2);
  EXPECT_EQ(Place_In_Week(Weekday::Sunday, Weekday::Monday), 7);
  EXPECT_EQ(Place_In_Week(Weekday::Saturday, Weekday::Sunday), 7);
  EXPECT_EQ(Place_In_Week(Weekday::Friday, Weekday::Saturday), 7);
  EXPECT_EQ(Place_In_Week(Weekday::Sunday, Weekday::Saturday), 2);
}

TEST(Weekday_At, Undoes_Place_In_Week_for_every_start_of_the_week) {
  for (int first = 1; first <= 7; ++first) {
    EXPECT_EQ(Weekday_At(1, static_cast<Weekday>(first)), static_cast<Weekday>(first));
    for (int day = 1; day <= 7; ++day) {
      const int place = Place_In_Week(static_cast<Weekday>(day), static_cast<Weekday>(first));
      EXPECT_GE(place, 1);
      EXPECT_LE(place, 7);
      EXPECT_EQ(Weekday_At(place, static_cast<Weekday>(first)), static_cast<Weekday>(day));
    }
  }
}

TEST(Moment, Drops_the_fraction_of_a_second) {
  EXPECT_EQ((Moment{0, 0}.Seconds()), 0);
  EXPECT_EQ((Moment{0, 999'999}.Seconds()), 0);
  EXPECT_EQ((Moment{0, 1'000'000}.Seconds()), 1);
  EXPECT_EQ((Moment{0, 86'399'999'999}.Seconds()), 86399);
}

TEST(Second_Count, Goes_on_over_midnight_without_a_gap) {
  EXPECT_EQ(Second_Count({0, 0}), 0);
  EXPECT_EQ(Second_Count({1, 0}) - Second_Count({0, 86'399'999'999}), 1);
  EXPECT_EQ(Second_Count({-1, 0}), -86400);
  EXPECT_EQ(Second_Count({last_day, 86'399'999'999}), std::int64_t{last_day} * 86400 + 86399);
  EXPECT_EQ(Second_Count({38051, 50'820'500'000}), std::int64_t{38051} * 86400 + 50820);
}
