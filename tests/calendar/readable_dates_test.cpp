// The dates of lists that a click reads again: without blanks, and as a day that reads back as itself.
#include <gtest/gtest.h>

#include "calendar/dates.h"
#include "tests/calendar/calendar_world.h"
#include "tests/calendar/odd_locale.h"

namespace {

class Readable_Dates_Test : public ::testing::Test {
 protected:
  std::string Day(int year) {
    std::string text;
    Dates.Append_Readable_Date(text, basic::Date_Serial(year, 3, 5));
    return text;
  }

  /// At nine in the evening, or at midnight.
  std::string Moment(int year, bool evening) {
    std::string text;
    const basic::Moment moment{basic::Date_Serial(year, 3, 5), evening ? 21 * 3600 * 1'000'000LL : 0};
    Dates.Append_Readable_Moment(text, moment);
    EXPECT_EQ(Dates.Read_Moment(text), moment) << text;
    EXPECT_EQ(Dates.Read_Date(text.substr(0, text.find(' '))), moment.Day) << text;
    return text;
  }

  Odd_Locale Locale;
  Fake_Clock Clock;
  calendar::Dates Dates{Clock, Locale};
};

}  // namespace

TEST_F(Readable_Dates_Test, Have_no_blanks_but_that_before_a_time) {
  Locale.Pattern = "d/ m/ ";
  EXPECT_EQ(Day(2004), "5.3.2004");
  EXPECT_EQ(Moment(2004, false), "5.3.2004");
  EXPECT_EQ(Moment(2004, true), "5.3.2004 21:00:00");
}

TEST_F(Readable_Dates_Test, Have_the_year_first_where_two_digits_mean_another_one) {
  Locale.Pattern = "dd/mm/";
  Locale.Digits_Of_Year = 2;
  EXPECT_EQ(Day(1920), "1920-03-05");
  EXPECT_EQ(Day(1930), "05.03.30");
  EXPECT_EQ(Moment(1920, false), "1920-03-05");
  EXPECT_EQ(Moment(1920, true), "1920-03-05 21:00:00");
  EXPECT_EQ(Moment(2004, true), "05.03.04 21:00:00");
}

TEST_F(Readable_Dates_Test, Have_the_year_first_where_the_date_is_not_read_at_all) {
  Locale.Pattern = "d/m/x";
  EXPECT_EQ(Day(2004), "2004-03-05");
  EXPECT_EQ(Moment(2004, false), "2004-03-05");
  EXPECT_EQ(Moment(2004, true), "2004-03-05 21:00:00");
}

TEST_F(Readable_Dates_Test, Have_the_year_first_where_the_time_is_not_read_at_all) {
  Locale.Pattern = "dd/mm/";
  Locale.Time = "HH h mm";
  EXPECT_EQ(Moment(2004, false), "05.03.2004");
  EXPECT_EQ(Moment(2004, true), "2004-03-05 21:00:00");
}
