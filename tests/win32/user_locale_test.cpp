// Dates in the user's locale, whose form and order the user has changed: what is written for a click reads back, and the
// years of two digits are the system's.
#include "win32/user_locale.h"

#include <gtest/gtest.h>

#include "calendar/dates.h"
#include "win32/local_clock.h"

namespace {

/// A value of the user's locale, set for as long as this lives.
class Own_Value {
 public:
  Own_Value(LCTYPE what, const char* text) : what_(what) {
    EXPECT_NE(GetLocaleInfoA(LOCALE_USER_DEFAULT, what, before_, sizeof before_), 0);
    EXPECT_NE(SetLocaleInfoA(LOCALE_USER_DEFAULT, what, text), 0);
  }
  Own_Value(const Own_Value&) = delete;
  Own_Value& operator=(const Own_Value&) = delete;
  ~Own_Value() { SetLocaleInfoA(LOCALE_USER_DEFAULT, what_, before_); }

 private:
  LCTYPE what_;
  char before_[80] = "";
};

basic::Moment In_The_Evening(int year) { return {basic::Date_Serial(year, 3, 5), 21 * 3600 * 1'000'000LL}; }

/// What a list shows of a moment. A click takes it up to the first blank.
std::string Readable(const basic::Moment& moment) {
  win32::User_Locale locale;
  win32::Local_Clock clock;
  const calendar::Dates dates(clock, locale);
  std::string text;
  dates.Append_Readable_Moment(text, moment);
  EXPECT_EQ(dates.Read_Moment(text), moment) << text;
  EXPECT_EQ(dates.Read_Date(text.substr(0, text.find(' '))), moment.Day) << text;
  return text;
}

int Year_Of(const std::string& text) {
  win32::User_Locale locale;
  return basic::Civil_From_Serial(locale.Read_Date(text)).Year;
}

}  // namespace

TEST(User_Locale_Test, A_short_date_with_blanks_is_listed_without_them) {
  const Own_Value short_date(LOCALE_SSHORTDATE, "d. M. yyyy");
  EXPECT_EQ(Readable({In_The_Evening(2004).Day, 0}), "5.3.2004");
  EXPECT_EQ(Readable(In_The_Evening(2004)), "5.3.2004 21:00:00");
}

TEST(User_Locale_Test, A_year_that_two_digits_do_not_tell_is_listed_first) {
  const Own_Value short_date(LOCALE_SSHORTDATE, "dd/MM/yy");
  EXPECT_EQ(Readable({In_The_Evening(1920).Day, 0}), "1920-03-05");
  EXPECT_EQ(Readable(In_The_Evening(1920)), "1920-03-05 21:00:00");
  EXPECT_EQ(Readable({In_The_Evening(2004).Day, 0}), "05/03/04");
  EXPECT_EQ(Readable(In_The_Evening(2004)), "05/03/04 21:00:00");
}

TEST(User_Locale_Test, A_form_that_is_not_read_is_listed_with_the_year_first) {
  const Own_Value short_date(LOCALE_SSHORTDATE, "'on 'dd/MM'x'yyyy");
  EXPECT_EQ(Readable({In_The_Evening(2004).Day, 0}), "2004-03-05");
  const Own_Value time(LOCALE_STIMEFORMAT, "'at 'HH:mm:ss");
  EXPECT_EQ(Readable(In_The_Evening(2004)), "2004-03-05 21:00:00");
}

TEST(User_Locale_Test, Numbers_are_read_in_the_order_of_the_user) {
  const Own_Value short_date(LOCALE_SSHORTDATE, "M/d/yyyy");
  win32::User_Locale locale;
  EXPECT_EQ(locale.Read_Date("3/5/2004"), In_The_Evening(2004).Day);
  EXPECT_EQ(locale.Read_Moment("3/5/04 9:00 PM"), In_The_Evening(2004));
}

TEST(User_Locale_Test, The_newest_year_of_two_digits_is_the_systems) {
  DWORD newest = 0;
  ASSERT_NE(GetCalendarInfoA(LOCALE_USER_DEFAULT, CAL_GREGORIAN, 0x20000030, nullptr, 0, &newest), 0);
  const auto year = static_cast<int>(newest);
  const auto two_digits = [](int of) { return std::to_string(of % 100 / 10) + std::to_string(of % 10); };
  for (const char* const before : {"5/3/", "5 March ", "March 5, ", "Friday, 5 March "}) {
    EXPECT_EQ(Year_Of(before + two_digits(year)), year) << before;
    EXPECT_EQ(Year_Of(before + two_digits(year + 1)), year - 99) << before;
    EXPECT_EQ(Year_Of(before + two_digits(year + 1) + " 9:05"), year - 99) << before;
  }
}

TEST(User_Locale_Test, What_names_no_year_is_left_to_the_system) {
  win32::User_Locale locale;
  win32::Local_Clock clock;
  const int present = basic::Civil_From_Serial(clock.Now().Day).Year;
  EXPECT_EQ(locale.Read_Date("3/4"), basic::Date_Serial(present, 4, 3));
  EXPECT_EQ(locale.Read_Date("5 March"), basic::Date_Serial(present, 3, 5));
  EXPECT_EQ(locale.Read_Moment("14:30"), (basic::Moment{0, (14 * 3600 + 30 * 60) * 1'000'000LL}));
}
