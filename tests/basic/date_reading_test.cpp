#include "basic/date_reading.h"

#include <gtest/gtest.h>

using basic::Date_Order;
using basic::Date_Serial;
using basic::Read_Numeric_Date;
using basic::Serial_Day;

namespace {

constexpr std::array all_orders{Date_Order::Day_First, Date_Order::Month_First, Date_Order::Year_First};

/// As "year-month-day", "none" where it is no date.
std::string Read(std::string_view text, Date_Order order) {
  const std::optional<Serial_Day> day = Read_Numeric_Date(text, {order});
  if (!day) return "none";
  const basic::Civil_Date date = basic::Civil_From_Serial(*day);
  return std::to_string(date.Year) + '-' + std::to_string(date.Month) + '-' + std::to_string(date.Day);
}

std::string Day_First(std::string_view text) { return Read(text, Date_Order::Day_First); }
std::string Month_First(std::string_view text) { return Read(text, Date_Order::Month_First); }
std::string Year_First(std::string_view text) { return Read(text, Date_Order::Year_First); }

}  // namespace

TEST(Read_Numeric_Date, Reads_the_numbers_in_the_order_of_the_locale) {
  EXPECT_EQ(Day_First("5/3/2004"), "2004-3-5");
  EXPECT_EQ(Month_First("5/3/2004"), "2004-5-3");
  EXPECT_EQ(Year_First("2004/5/3"), "2004-5-3");
  EXPECT_EQ(Day_First("05/03/2004"), "2004-3-5");
}

TEST(Read_Numeric_Date, Takes_each_of_three_separators_and_blanks_around_the_whole) {
  for (const char* const text : {"5/3/2004", "5.3.2004", "5-3-2004", "5/3.2004", "  5/3/2004 "})
    EXPECT_EQ(Day_First(text), "2004-3-5") << text;
}

TEST(Read_Numeric_Date, Changes_day_and_month_where_the_month_would_be_above_12) {
  EXPECT_EQ(Month_First("25/3/2004"), "2004-3-25");
  EXPECT_EQ(Month_First("13/12/2004"), "2004-12-13");
  EXPECT_EQ(Month_First("12/11/2004"), "2004-12-11");
  EXPECT_EQ(Day_First("3/25/2004"), "2004-3-25");
  EXPECT_EQ(Year_First("2004-25-3"), "2004-3-25");
  EXPECT_EQ(Day_First("13/13/2004"), "none");
}

TEST(Read_Numeric_Date, A_front_number_that_can_only_be_a_year_is_the_year) {
  for (const Date_Order order : all_orders) {
    EXPECT_EQ(Read("2004-3-5", order), "2004-3-5");
    EXPECT_EQ(Read("32/3/5", order), "1932-3-5");
    EXPECT_EQ(Read("150-1-2", order), "150-1-2");
  }
}

TEST(Read_Numeric_Date, A_locale_that_writes_the_year_first_reads_a_day_in_front) {
  EXPECT_EQ(Year_First("5/3/2004"), "2004-3-5");
  EXPECT_EQ(Year_First("25/3/2004"), "2004-3-25");
  EXPECT_EQ(Year_First("5/3/12"), "2005-3-12") << "unless the last number may be the day";
}

TEST(Read_Numeric_Date, Years_of_one_or_two_digits_are_those_from_1930_to_2029) {
  EXPECT_EQ(Day_First("5/3/04"), "2004-3-5");
  EXPECT_EQ(Day_First("5/3/4"), "2004-3-5");
  EXPECT_EQ(Day_First("5/3/29"), "2029-3-5");
  EXPECT_EQ(Day_First("5/3/30"), "1930-3-5");
  EXPECT_EQ(Day_First("5/3/99"), "1999-3-5");
  EXPECT_EQ(Day_First("5/3/0"), "2000-3-5");
  EXPECT_EQ(Day_First("5/3/004"), "none") << "three digits are meant as they stand";
}

TEST(Read_Numeric_Date, Years_of_one_or_two_digits_are_the_hundred_that_end_with_the_newest_one) {
  const auto year_of = [](const char* text, int newest) {
    const auto day = Read_Numeric_Date(text, {Date_Order::Day_First, newest});
    return day ? basic::Civil_From_Serial(*day).Year : 0;
  };
  EXPECT_EQ(year_of("5/3/49", 2049), 2049);
  EXPECT_EQ(year_of("5/3/50", 2049), 1950);
  EXPECT_EQ(year_of("5/3/0", 2049), 2000);
  EXPECT_EQ(year_of("5/3/99", 2099), 2099);
  EXPECT_EQ(year_of("5/3/0", 2099), 2000);
  EXPECT_EQ(year_of("5/3/0", 2000), 2000);
  EXPECT_EQ(year_of("5/3/1", 2000), 1901);
  EXPECT_EQ(year_of("50/3/5", 2049), 1950);
  EXPECT_EQ(year_of("5/3/2049", 1999), 2049);
  EXPECT_EQ(year_of("5/3/50", 99), 0) << "a year below 100 is none";
}

TEST(Read_Numeric_Date, Takes_the_first_number_for_the_year_where_there_is_no_such_day) {
  EXPECT_EQ(Day_First("31/2/04"), "1931-2-4");
  EXPECT_EQ(Day_First("29/2/03"), "2029-2-3");
  EXPECT_EQ(Month_First("2/30/4"), "none");
  EXPECT_EQ(Day_First("31/2/2004"), "none") << "2004 is no day";
  EXPECT_EQ(Day_First("31/2/32"), "none");
}

TEST(Read_Numeric_Date, Knows_the_length_of_each_month) {
  EXPECT_EQ(Day_First("29/2/2004"), "2004-2-29");
  EXPECT_EQ(Day_First("29/2/2003"), "none");
  EXPECT_EQ(Day_First("29/2/9999"), "none");
  EXPECT_EQ(Day_First("30/2/2004"), "none");
  EXPECT_EQ(Day_First("31/4/2004"), "none");
  EXPECT_EQ(Day_First("31/12/2004"), "2004-12-31");
}

TEST(Read_Numeric_Date, Reads_the_years_from_100_to_9999) {
  EXPECT_EQ(Day_First("1/1/100"), "100-1-1");
  EXPECT_EQ(Day_First("1/1/0099"), "none");
  EXPECT_EQ(Day_First("31/12/9999"), "9999-12-31");
  EXPECT_EQ(Day_First("1/1/10000"), "none");
  EXPECT_EQ(Day_First("1/1/99999999999"), "none");
}

TEST(Read_Numeric_Date, Reads_nothing_else) {
  for (const char* const text : {"",         " ",        "5",          "5/3",           "5/3/",
                                 "/3/2004",  "5//2004",  "5/3/2004/1", "5/3/2004 9:00", "5 /3/2004",
                                 "a/b/c",    "5/3/2oo4", "-5/3/2004",  "+5/3/2004",     "5/-3/2004",
                                 "0/3/2004", "5/0/2004", "0/0/0",      "5,3,2004",      "5/3/2004=x",
                                 "38051"})
    for (const Date_Order order : all_orders) EXPECT_EQ(Read(text, order), "none") << text;
}

TEST(Read_Numeric_Date, Reads_back_every_day_as_it_is_written) {
  for (Serial_Day day = Date_Serial(1999, 1, 1); day < Date_Serial(2005, 1, 1); ++day) {
    const basic::Civil_Date date = basic::Civil_From_Serial(day);
    const std::string d = std::to_string(date.Day), m = std::to_string(date.Month), y = std::to_string(date.Year);
    EXPECT_EQ(Read_Numeric_Date(d + "/" + m + "/" + y, {Date_Order::Day_First}), day);
    EXPECT_EQ(Read_Numeric_Date(m + "/" + d + "/" + y, {Date_Order::Month_First}), day);
    EXPECT_EQ(Read_Numeric_Date(y + "/" + m + "/" + d, {Date_Order::Year_First}), day);
  }
}
