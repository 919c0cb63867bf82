#include "basic/date_pattern.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"

using basic::Append_Number;
using basic::Date_Serial;
using basic::Date_Words;
using basic::Format_Date;
using basic::Moment;
using basic::Weekday;

namespace {

const Date_Words english{{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
                         {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
                         {"January", "February", "March", "April", "May", "June", "July", "August", "September",
                          "October", "November", "December"},
                         "/",
                         ":"};

const Date_Words german{{"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
                        {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"},
                        {"Januar", "Februar", "M\xE4rz", "April", "Mai", "Juni", "Juli", "August", "September",
                         "Oktober", "November", "Dezember"},
                        ".",
                        ":"};

// Separators of more than one character, and a point in the time.
const Date_Words spaced{{"Ne", "Po", "Ut", "St", "Ct", "Pa", "So"},
                        {"N", "P", "U", "S", "C", "A", "O"},
                        {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"},
                        ". ",
                        "."};

Moment At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return {Date_Serial(year, month, day), std::int64_t{hour * 3600 + minute * 60 + second} * 1'000'000};
}

std::string In_English(const Moment& moment, std::string_view pattern) { return Format_Date(moment, pattern, english); }

const Moment afternoon = At(2004, 3, 5, 14, 7, 9);
const Moment morning = At(2010, 11, 28, 4, 30, 45);

}  // namespace

TEST(Date_Pattern, d_is_the_day_without_a_leading_zero) {
  EXPECT_EQ(In_English(afternoon, "d"), "5");
  EXPECT_EQ(In_English(morning, "d"), "28");
}

TEST(Date_Pattern, dd_is_the_day_in_two_digits) {
  EXPECT_EQ(In_English(afternoon, "dd"), "05");
  EXPECT_EQ(In_English(morning, "dd"), "28");
}

TEST(Date_Pattern, dddd_is_the_full_weekday_name) {
  for (int day = 0; day < 7; ++day) {
    const Moment moment = At(2004, 2, 29 + day);  // a Sunday
    EXPECT_EQ(In_English(moment, "dddd"), english.Weekdays[static_cast<std::size_t>(day)]);
    EXPECT_EQ(Format_Date(moment, "dddd", german), german.Weekdays[static_cast<std::size_t>(day)]);
  }
}

TEST(Date_Pattern, m_is_the_month_without_a_leading_zero) {
  EXPECT_EQ(In_English(afternoon, "m"), "3");
  EXPECT_EQ(In_English(morning, "m"), "11");
}

TEST(Date_Pattern, mm_is_the_month_in_two_digits) {
  EXPECT_EQ(In_English(afternoon, "mm"), "03");
  EXPECT_EQ(In_English(morning, "mm"), "11");
}

TEST(Date_Pattern, yyyy_is_the_year_in_four_digits) {
  EXPECT_EQ(In_English(afternoon, "yyyy"), "2004");
  EXPECT_EQ(In_English(At(100, 1, 1), "yyyy"), "0100");
  EXPECT_EQ(In_English(At(9999, 12, 31), "yyyy"), "9999");
}

TEST(Date_Pattern, H_and_h_are_the_hour_without_a_leading_zero) {
  for (const std::string_view pattern : {"H", "h"}) {
    EXPECT_EQ(In_English(afternoon, pattern), "14");
    EXPECT_EQ(In_English(morning, pattern), "4");
    EXPECT_EQ(In_English(At(2004, 3, 5), pattern), "0");
    EXPECT_EQ(In_English(At(2004, 3, 5, 23, 59, 59), pattern), "23");
  }
}

TEST(Date_Pattern, HH_and_hh_are_the_hour_in_two_digits) {
  for (const std::string_view pattern : {"HH", "hh"}) {
    EXPECT_EQ(In_English(afternoon, pattern), "14");
    EXPECT_EQ(In_English(morning, pattern), "04");
    EXPECT_EQ(In_English(At(2004, 3, 5), pattern), "00");
  }
}

TEST(Date_Pattern, ss_is_the_second_in_two_digits) {
  EXPECT_EQ(In_English(afternoon, "ss"), "09");
  EXPECT_EQ(In_English(morning, "ss"), "45");
}

TEST(Date_Pattern, mm_directly_behind_an_hour_piece_is_the_minutes) {
  EXPECT_EQ(In_English(afternoon, "H:mm"), "14:07");
  EXPECT_EQ(In_English(afternoon, "HH:mm"), "14:07");
  EXPECT_EQ(In_English(afternoon, "hh:mm:ss"), "14:07:09");
  EXPECT_EQ(In_English(afternoon, "Hmm"), "1407");
  EXPECT_EQ(In_English(morning, "h:mm:ss"), "4:30:45");
}

TEST(Date_Pattern, mm_elsewhere_is_the_month) {
  EXPECT_EQ(In_English(afternoon, "mm:ss"), "03:09");
  EXPECT_EQ(In_English(afternoon, "mm H:mm"), "03 14:07");
  EXPECT_EQ(In_English(afternoon, "H:mm mm"), "14:07 03");
  EXPECT_EQ(In_English(afternoon, "H:mm:mm"), "14:07:03") << "the hour piece lends its meaning once";
  EXPECT_EQ(In_English(afternoon, "H d mm"), "14 5 03");
  EXPECT_EQ(In_English(afternoon, "H:m"), "14:3") << "a single m is the month everywhere";
}

TEST(Date_Pattern, AM_PM_tells_the_half_of_the_day) {
  EXPECT_EQ(In_English(At(2004, 3, 5, 0, 0, 0), "AM/PM"), "AM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 11, 59, 59), "AM/PM"), "AM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 12, 0, 0), "AM/PM"), "PM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 23, 59, 59), "AM/PM"), "PM");
}

TEST(Date_Pattern, AM_PM_makes_all_hours_run_from_1_to_12) {
  EXPECT_EQ(In_English(At(2004, 3, 5, 0, 5, 0), "h:mm AM/PM"), "12:05 AM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 1, 5, 0), "h:mm AM/PM"), "1:05 AM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 11, 59, 0), "h:mm AM/PM"), "11:59 AM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 12, 0, 0), "h:mm AM/PM"), "12:00 PM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 13, 0, 0), "h:mm:ss AM/PM"), "1:00:00 PM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 23, 59, 59), "HH:mm:ss AM/PM"), "11:59:59 PM");
  EXPECT_EQ(In_English(At(2004, 3, 5, 14, 7, 0), "AM/PM H, HH"), "PM 2, 02") << "in front of the hours too";
}

TEST(Date_Pattern, AM_PM_keeps_its_slash_in_every_locale) {
  EXPECT_EQ(Format_Date(afternoon, "h:mm AM/PM", spaced), "2.07 PM");
}

TEST(Date_Pattern, AM_PM_counts_behind_other_letters_as_well) {
  EXPECT_EQ(In_English(afternoon, "hAAM/PM"), "2APM");
  EXPECT_EQ(In_English(afternoon, "AMAM/PM"), "AMPM");
}

TEST(Date_Pattern, Slash_becomes_the_date_separator) {
  EXPECT_EQ(Format_Date(afternoon, "dd/mm/yyyy", english), "05/03/2004");
  EXPECT_EQ(Format_Date(afternoon, "dd/mm/yyyy", german), "05.03.2004");
  EXPECT_EQ(Format_Date(afternoon, "d/m/yyyy", spaced), "5. 3. 2004");
  EXPECT_EQ(Format_Date(afternoon, "d//m", spaced), "5. . 3");
}

TEST(Date_Pattern, Colon_becomes_the_time_separator) {
  EXPECT_EQ(Format_Date(afternoon, "HH:mm:ss", english), "14:07:09");
  EXPECT_EQ(Format_Date(afternoon, "HH:mm:ss", german), "14:07:09");
  EXPECT_EQ(Format_Date(afternoon, "HH:mm:ss", spaced), "14.07.09");
  EXPECT_EQ(Format_Date(afternoon, "d:m:yyyy", spaced), "5.3.2004");
  EXPECT_EQ(Format_Date(afternoon, "H::mm", spaced), "14..07");
}

TEST(Date_Pattern, Every_other_character_stands_for_itself) {
  EXPECT_EQ(In_English(afternoon, "(d) - [m], yyyy.\t\"x\""), "(5) - [3], 2004.\t\"x\"");
  for (int code = 1; code < 256; ++code) {
    const std::string one(1, static_cast<char>(code));
    if (std::string_view("dmHh/:").find(one) != std::string_view::npos) continue;
    EXPECT_EQ(Format_Date(afternoon, one, spaced), one) << code;
  }
}

TEST(Date_Pattern, A_run_of_a_letter_that_is_no_piece_stands_for_itself) {
  EXPECT_EQ(In_English(afternoon, "ddd"), "ddd");
  EXPECT_EQ(In_English(afternoon, "ddddd"), "ddddd");
  EXPECT_EQ(In_English(afternoon, "mmm"), "mmm");
  EXPECT_EQ(In_English(afternoon, "yy"), "yy");
  EXPECT_EQ(In_English(afternoon, "yyyyy"), "yyyyy");
  EXPECT_EQ(In_English(afternoon, "HHH"), "HHH");
  EXPECT_EQ(In_English(afternoon, "s"), "s");
}

TEST(Date_Pattern, An_empty_pattern_gives_an_empty_text) { EXPECT_EQ(In_English(afternoon, ""), ""); }

TEST(Date_Pattern, A_zero_byte_stands_for_itself) {
  EXPECT_EQ(In_English(afternoon, std::string_view("d\0m", 3)), std::string("5\0"
                                                                            "3",
                                                                            3));
}

TEST(Date_Pattern, Appends_behind_what_is_there) {
  std::string text = "Today: ";
  basic::Append_Date(text, afternoon, "d/m/yyyy", german);
  EXPECT_EQ(text, "Today: 5.3.2004");
}

TEST(Append_Number, Fills_with_zeros_up_to_the_digits) {
  const auto written = [](int number, int digits) {
    std::string text = "x";
    Append_Number(text, number, digits);
    return text;
  };
  EXPECT_EQ(written(7, 1), "x7");
  EXPECT_EQ(written(7, 2), "x07");
  EXPECT_EQ(written(0, 2), "x00");
  EXPECT_EQ(written(12, 2), "x12");
  EXPECT_EQ(written(123, 2), "x123");
  EXPECT_EQ(written(9, 4), "x0009");
  EXPECT_EQ(written(2147483647, 4), "x2147483647");
  EXPECT_EQ(written(1, 20), "x00000000000000000001");
}

TEST(Append_Number, Takes_one_digit_unless_told_otherwise) {
  std::string text;
  Append_Number(text, 0);
  Append_Number(text, 31);
  EXPECT_EQ(text, "031");
}

TEST(Date_Words, Names_the_months_from_1_to_12) {
  EXPECT_EQ(english.Month_Name(1), "January");
  EXPECT_EQ(english.Month_Name(12), "December");
  EXPECT_EQ(german.Month_Name(3), "M\xE4rz");
}

TEST(Date_Words, Throws_error_5_for_any_other_month) {
  for (const int month : {0, 13, -1, 32767, -32768})
    EXPECT_EQ(Error_Of([=] { static_cast<void>(english.Month_Name(month)); }), 5) << month;
}

TEST(Date_Words, Names_the_weekdays_from_Sunday_on) {
  EXPECT_EQ(english.Weekday_Name(Weekday::Sunday), "Sunday");
  EXPECT_EQ(english.Weekday_Name(Weekday::Saturday), "Saturday");
  EXPECT_EQ(english.Short_Weekday_Name(Weekday::Monday), "Mon");
  EXPECT_EQ(german.Short_Weekday_Name(Weekday::Wednesday), "Mi");
}
