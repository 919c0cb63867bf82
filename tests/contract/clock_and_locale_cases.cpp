// What the program relies on of the clock, the locale and the loop. The tests run in British English.
#include "basic/serial_day.h"
#include "tests/basic/error_of.h"
#include "tests/contract/service_world.h"

namespace {

class Clock_And_Locale_Cases : public Service_Cases {
 protected:
  platform::Clock& Clock = World->System().Clock;
  platform::Locale& Locale = World->System().Locale;
};

constexpr basic::Serial_Day fifth_of_march_2004 = 38051;

std::int64_t Micros_Of(const basic::Moment& moment) { return moment.Day * 86'400'000'000 + moment.Micros; }

}  // namespace

TEST_F(Clock_And_Locale_Cases, The_clock_shows_a_moment_of_this_age) {
  const basic::Moment now = Clock.Now();
  EXPECT_GT(now.Day, 36000);
  EXPECT_LT(now.Day, 90000);
  EXPECT_GE(now.Micros, 0);
  EXPECT_LT(now.Micros, 86'400'000'000);
}

TEST_F(Clock_And_Locale_Cases, A_wait_takes_its_time) {
  const std::int64_t start = Micros_Of(Clock.Now());
  const std::int64_t end = start + 50'000;
  for (std::int64_t now = start; now < end; now = Micros_Of(Clock.Now())) World->System().Loop.Wait_Events(end - now);
  EXPECT_LT(Micros_Of(Clock.Now()) - start, 5'000'000);
}

TEST_F(Clock_And_Locale_Cases, All_names_are_there) {
  const basic::Date_Words& words = Locale.Words();
  for (const std::string& name : words.Weekdays) EXPECT_FALSE(name.empty());
  for (const std::string& name : words.Short_Weekdays) EXPECT_FALSE(name.empty());
  for (const std::string& name : words.Months) EXPECT_FALSE(name.empty());
  EXPECT_EQ(words.Weekday_Name(basic::Weekday::Friday), "Friday");
  EXPECT_EQ(words.Short_Weekday_Name(basic::Weekday::Sunday), "Sun");
  EXPECT_EQ(words.Month_Name(3), "March");
  EXPECT_EQ(words.Date_Separator, "/");
  EXPECT_EQ(words.Time_Separator, ":");
}

TEST_F(Clock_And_Locale_Cases, The_week_starts_on_monday) { EXPECT_EQ(Locale.First_Weekday(), basic::Weekday::Monday); }

TEST_F(Clock_And_Locale_Cases, Days_have_a_short_and_a_long_form) {
  std::string text = "on ";
  Locale.Append_Short_Date(text, fifth_of_march_2004);
  EXPECT_EQ(text, "on 05/03/2004");
  text = "on ";
  Locale.Append_Long_Date(text, fifth_of_march_2004);
  EXPECT_NE(text.find("5 March 2004"), std::string::npos) << text;
}

TEST_F(Clock_And_Locale_Cases, A_date_is_read_as_the_locale_writes_it) {
  for (const char* const text : {"5/3/2004", "05/03/2004", " 5.3.04 ", "5-3-2004", "2004-3-5"})
    EXPECT_EQ(Locale.Read_Date(text), fifth_of_march_2004) << text;
  EXPECT_EQ(Locale.Read_Date("13/3/2004"), fifth_of_march_2004 + 8);
  EXPECT_EQ(Locale.Read_Date("3/13/2004"), fifth_of_march_2004 + 8);
  std::string text;
  Locale.Append_Short_Date(text, fifth_of_march_2004);
  EXPECT_EQ(Locale.Read_Date(text), fifth_of_march_2004);
}

TEST_F(Clock_And_Locale_Cases, A_text_that_is_no_date_is_error_13) {
  for (const char* const text : {"", "abc", "30/2/2004", "29/2/2003", "0/1/2004"})
    EXPECT_EQ(Error_Of([&] { Locale.Read_Date(text); }), 13) << text;
}

TEST_F(Clock_And_Locale_Cases, Two_digits_mean_the_same_year_in_all_forms) {
  const auto year_of = [&](const std::string& text) {
    return basic::Civil_From_Serial(Locale.Read_Moment(text).Day).Year;
  };
  int oldest = 9999, newest = 0;
  for (int number = 0; number < 100; ++number) {
    const std::string year = std::to_string(number / 10) + std::to_string(number % 10);
    const int full = year_of("5/3/" + year);
    EXPECT_EQ(full % 100, number);
    for (const std::string& text :
         {"5/3/" + year + " 9:05", "5 March " + year, "Mar 5, " + year, "Friday, 5 March " + year})
      EXPECT_EQ(year_of(text), full) << text;
    EXPECT_EQ(basic::Civil_From_Serial(Locale.Read_Date("5/3/" + year)).Year, full);
    oldest = std::min(oldest, full);
    newest = std::max(newest, full);
  }
  EXPECT_EQ(newest - oldest, 99);
}

TEST_F(Clock_And_Locale_Cases, A_moment_has_a_general_form_that_reads_back) {
  std::string text = "at ";
  Locale.Append_General_Date(text, {fifth_of_march_2004, 0});
  EXPECT_EQ(text, "at 05/03/2004");
  text.clear();
  const basic::Moment afternoon{fifth_of_march_2004, 47'109'000'000};
  Locale.Append_General_Date(text, afternoon);
  EXPECT_EQ(text, "05/03/2004 13:05:09");
  EXPECT_EQ(Locale.Read_Moment(text), afternoon);
}

TEST_F(Clock_And_Locale_Cases, Moments_are_read_as_people_write_them) {
  EXPECT_EQ(Locale.Read_Moment("5/3/2004"), (basic::Moment{fifth_of_march_2004, 0}));
  EXPECT_EQ(Locale.Read_Moment("5 March 2004"), (basic::Moment{fifth_of_march_2004, 0}));
  EXPECT_EQ(Locale.Read_Moment("05/03/2004 1:05:09 PM"), (basic::Moment{fifth_of_march_2004, 47'109'000'000}));
  EXPECT_EQ(Locale.Read_Moment("30/12/1899"), (basic::Moment{0, 0}));
  EXPECT_EQ(Locale.Read_Moment("29/12/1899"), (basic::Moment{-1, 0}));
  for (const char* const text : {"", "soon", "31/2/2004", "5/3/2004 25:00"})
    EXPECT_EQ(Error_Of([&] { Locale.Read_Moment(text); }), 13) << text;
}
