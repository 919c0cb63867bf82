#include "basic/moment_reading.h"

#include <gtest/gtest.h>

using basic::Date_Order;
using basic::Moment;
using basic::Serial_Day;

namespace {

const basic::Date_Words words{{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
                              {"Sun.", "Mon.", "Tue.", "Wed.", "Thu.", "Fri.", "Sat."},
                              {"January", "February", "M\xE4rz", "April", "May", "June", "July", "August", "September",
                               "October", "November", "December"},
                              "/",
                              ":"};

constexpr Serial_Day fifth_of_april_2004 = 38082;

/// Day 1 stands for a text that isn't read.
Moment Read(std::string_view text, Date_Order order = Date_Order::Day_First) {
  return basic::Read_Moment(text, {order}, words).value_or(Moment{1, 0});
}

Moment At(Serial_Day day, int hour, int minute, int second) {
  return {day, ((hour * 60LL + minute) * 60 + second) * 1'000'000};
}

constexpr Moment unread{1, 0};

}  // namespace

TEST(Moment_Reading_Test, Reads_numbers_in_the_order_of_the_locale) {
  EXPECT_EQ(Read("5/4/2004"), At(fifth_of_april_2004, 0, 0, 0));
  EXPECT_EQ(Read(" 05.04.2004 "), At(fifth_of_april_2004, 0, 0, 0));
  EXPECT_EQ(Read("4-5-2004", Date_Order::Month_First), At(fifth_of_april_2004, 0, 0, 0));
  EXPECT_EQ(Read("2004-4-5", Date_Order::Month_First), At(fifth_of_april_2004, 0, 0, 0));
}

TEST(Moment_Reading_Test, Reads_the_names_of_months_and_their_beginnings) {
  for (const char* const text :
       {"5 April 2004", "5-Apr-2004", "april 5, 2004", "APR 5 2004", "5. April 2004", "5 apr 04"})
    EXPECT_EQ(Read(text), At(fifth_of_april_2004, 0, 0, 0)) << text;
  EXPECT_EQ(Read("5 M\xE4r 2004").Day, fifth_of_april_2004 - 31);
  for (const char* const text :
       {"5 Ap 2004", "5 Aprils 2004", "5 2004 April", "April 2004", "April 31 2004", "5 April", "on 5 April 2004"})
    EXPECT_EQ(Read(text), unread) << text;
}

TEST(Moment_Reading_Test, Passes_over_a_weekday_in_front) {
  for (const char* const text : {"Monday, April 5, 2004", "Mon 5 April 2004", "mon. 5 apr 04", "Friday, 5 April 2004"})
    EXPECT_EQ(Read(text), At(fifth_of_april_2004, 0, 0, 0)) << text;
  EXPECT_EQ(Read("Monday, 5 April 2004 9:05"), At(fifth_of_april_2004, 9, 5, 0));
  for (const char* const text : {"Monday", "M 5 April 2004", "5 April 2004 Monday", "Monday Monday 5 April 2004"})
    EXPECT_EQ(Read(text), unread) << text;
}

TEST(Moment_Reading_Test, All_forms_know_the_same_years_by_two_digits) {
  const auto year_of = [](const char* text, int newest) {
    const auto moment = basic::Read_Moment(text, {Date_Order::Day_First, newest}, words);
    return moment ? basic::Civil_From_Serial(moment->Day).Year : 0;
  };
  for (const char* const text : {"5/4/35", "5/4/35 9:05", "5 April 35", "April 5, 35 9:05 PM", "Monday, 5 April 35"}) {
    EXPECT_EQ(year_of(text, 2029), 1935) << text;
    EXPECT_EQ(year_of(text, 2049), 2035) << text;
  }
}

TEST(Moment_Reading_Test, Reads_a_time_behind_the_date) {
  EXPECT_EQ(Read("5/4/2004 9:05"), At(fifth_of_april_2004, 9, 5, 0));
  EXPECT_EQ(Read("5/4/2004  23:59:59"), At(fifth_of_april_2004, 23, 59, 59));
  EXPECT_EQ(Read("5 April 2004 0:00"), At(fifth_of_april_2004, 0, 0, 0));
}

TEST(Moment_Reading_Test, Reads_the_halves_of_the_day) {
  EXPECT_EQ(Read("5/4/2004 12:00:00 AM"), At(fifth_of_april_2004, 0, 0, 0));
  EXPECT_EQ(Read("5/4/2004 12:30 pm"), At(fifth_of_april_2004, 12, 30, 0));
  EXPECT_EQ(Read("5/4/2004 1:05PM"), At(fifth_of_april_2004, 13, 5, 0));
  EXPECT_EQ(Read("5/4/2004 11:59:59 PM"), At(fifth_of_april_2004, 23, 59, 59));
  EXPECT_EQ(Read("5/4/2004 13:00 PM"), unread);
  EXPECT_EQ(Read("5/4/2004 0:00 AM"), unread);
}

TEST(Moment_Reading_Test, A_time_alone_is_one_of_day_0) {
  EXPECT_EQ(Read("9:05"), At(0, 9, 5, 0));
  EXPECT_EQ(Read("12:00:00 AM"), At(0, 0, 0, 0));
}

TEST(Moment_Reading_Test, Refuses_what_is_no_date_or_no_time) {
  for (const char* const text : {"",
                                 " ",
                                 "soon",
                                 "5",
                                 "5/4",
                                 "31/2/2004",
                                 "5/4/2004 24:00",
                                 "5/4/2004 9:60",
                                 "5/4/2004 9:05:60",
                                 "5/4/2004 9",
                                 "5/4/2004 9:",
                                 "5/4/2004 :05",
                                 "5/4/2004 x:05",
                                 "5/4/2004 9:x",
                                 "x:05",
                                 "5/4/2004 9:05 noon",
                                 "5/4/2004 9:05:06:07",
                                 "5/4/2004x9:05",
                                 "9:05 5/4/2004",
                                 "5/4/2004 123:05",
                                 ":",
                                 "5/4/99999",
                                 "-5/4/2004"})
    EXPECT_EQ(Read(text), unread) << text;
}
