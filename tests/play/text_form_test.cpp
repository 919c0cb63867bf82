#include "text_form.h"

#include <gtest/gtest.h>

using play::Cannot_Play;
using play::Number_Text;
using play::Quoted;

TEST(Text_Form_Test, Everything_that_isnt_plainly_printable_is_escaped) {
  EXPECT_EQ(Quoted("a b~"), "\"a b~\"");
  EXPECT_EQ(Quoted("\r\n\t\"\\"), "\"\\r\\n\\t\\\"\\\\\"");
  EXPECT_EQ(Quoted("M\xE4rz\x7F\x01"), "\"M\\xE4rz\\x7F\\x01\"");
  EXPECT_EQ(Quoted(std::string_view("\0", 1)), "\"\\x00\"");
}

TEST(Text_Form_Test, Numbers_are_printed_without_zeros_at_the_end) {
  EXPECT_EQ(Number_Text(0), "0");
  EXPECT_EQ(Number_Text(-0.0), "0");
  EXPECT_EQ(Number_Text(6450), "6450");
  EXPECT_EQ(Number_Text(7132.5), "7132.5");
  EXPECT_EQ(Number_Text(-1.25), "-1.25");
  EXPECT_EQ(Number_Text(1.0 / 3), "0.333333");
}

TEST(Text_Form_Test, Moments_are_printed_and_read_to_the_second) {
  const basic::Moment moment = play::To_Moment("2004-03-05", "14:07:09");
  EXPECT_EQ(moment.Day, 38051);
  EXPECT_EQ(play::Moment_Text(moment), "2004-03-05 14:07:09");
}

TEST(Text_Form_Test, Dates_that_dont_exist_arent_read) {
  for (const char* const day : {"2004-02-30", "2004-13-01", "2004-00-01", "2004-03", "2004-03-05x", "", "99-1-1"})
    EXPECT_THROW(play::To_Moment(day, "00:00:00"), Cannot_Play) << day;
  for (const char* const time : {"24:00:00", "00:60:00", "00:00:60", "00:00", "a:b:c"})
    EXPECT_THROW(play::To_Moment("2004-03-05", time), Cannot_Play) << time;
}

TEST(Text_Form_Test, Waits_are_read_to_the_microsecond) {
  EXPECT_EQ(play::To_Micros("0.3"), 300'000);
  EXPECT_EQ(play::To_Micros("0.000001"), 1);
  EXPECT_EQ(play::To_Micros("86400"), 86'400'000'000);
  for (const char* const seconds : {"-1", "x", "", "1s", "inf", "nan", "1e30"})
    EXPECT_THROW(play::To_Micros(seconds), Cannot_Play) << seconds;
}

TEST(Text_Form_Test, Whole_numbers_are_read_whole) {
  EXPECT_EQ(play::To_Whole("-2147483648"), -2147483647 - 1);
  for (const char* const number : {"1.5", "2147483648", "", " 1", "1 "})
    EXPECT_THROW(play::To_Whole(number), Cannot_Play) << number;
}
