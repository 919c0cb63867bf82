#include "events/event_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basic/convert.h"
#include "tests/basic/error_of.h"

using events::Event_Line;
using events::Read_Event_Line;

namespace {

int Error_Of_Line(const std::string& line) {
  return Error_Of([&] { Read_Event_Line(line); });
}

std::string All_Bytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

}  // namespace

TEST(Read_Event_Line, Splits_the_date_and_the_text) {
  const std::string line = "5/3/2004=Dentist at nine";
  const Event_Line event = Read_Event_Line(line);
  EXPECT_EQ(event.Day, 5);
  EXPECT_EQ(event.Month, 3);
  EXPECT_EQ(event.Year, 2004);
  EXPECT_EQ(event.Text, "Dentist at nine");
}

TEST(Read_Event_Line, Splits_at_the_first_equals_sign_alone) {
  EXPECT_EQ(Read_Event_Line("1/1/2005=a=b==").Text, "a=b==");
  EXPECT_EQ(Read_Event_Line("1/1/2005==").Text, "=");
}

TEST(Read_Event_Line, Takes_an_empty_text) { EXPECT_EQ(Read_Event_Line("1/1/2005=").Text, ""); }

TEST(Read_Event_Line, Gives_the_text_as_it_is_stored) {
  EXPECT_EQ(Read_Event_Line("14/2/2005=Tom && Jane\r\nat \"six\", 1/2").Text, "Tom && Jane\r\nat \"six\", 1/2");
}

TEST(Read_Event_Line, Keeps_every_byte_of_the_text) {
  const std::string text = All_Bytes();
  const std::string line = "1/1/2005=" + text;
  EXPECT_EQ(Read_Event_Line(line).Text, text);
}

TEST(Read_Event_Line, Takes_a_text_of_ten_megabytes) {
  const std::string text(10'000'000, '=');
  const std::string line = "31/12/9999=" + text;
  EXPECT_EQ(Read_Event_Line(line).Text, text);
}

TEST(Read_Event_Line, Throws_error_5_without_an_equals_sign) {
  for (const char* const line : {"", " ", "5/3/2004", "Tea", "5/3/2004 Tea"}) EXPECT_EQ(Error_Of_Line(line), 5) << line;
}

TEST(Read_Event_Line, Throws_error_13_unless_the_date_is_three_numbers) {
  for (const char* const line : {"=",
                                 "=Tea",
                                 "5=Tea",
                                 "5/3=Tea",
                                 "5/3/=Tea",
                                 "5//2004=Tea",
                                 "/3/2004=Tea",
                                 "//=Tea",
                                 "5/3/2004/=Tea",
                                 "5/3/2004/1=Tea",
                                 "5.3.2004=Tea",
                                 "x/3/2004=Tea",
                                 "5/March/2004=Tea",
                                 "5/3/04x=Tea",
                                 "5/3/2004.0=Tea",
                                 "5 5/3/2004=Tea",
                                 "--5/3/2004=Tea",
                                 "+/3/2004=Tea",
                                 "5/3/1e3=Tea",
                                 "5/3/&H7D4=Tea"})
    EXPECT_EQ(Error_Of_Line(line), 13) << line;
}

TEST(Read_Event_Line, Throws_error_6_for_a_number_beyond_16_bits) {
  for (const char* const line : {"32768/3/2004=", "5/-32769/2004=", "5/3/32768=", "5/3/99999999999999999999="})
    EXPECT_EQ(Error_Of_Line(line), 6) << line;
}

TEST(Read_Event_Line, Takes_numbers_that_are_no_date) {
  const Event_Line event = Read_Event_Line("32767/-32768/0=");
  EXPECT_EQ(event.Day, 32767);
  EXPECT_EQ(event.Month, -32768);
  EXPECT_EQ(event.Year, 0);
}

TEST(Read_Event_Line, Takes_signs_blanks_and_leading_zeros) {
  const Event_Line event = Read_Event_Line(" +5 /000000003/ 2004  =x");
  EXPECT_EQ(event.Day, 5);
  EXPECT_EQ(event.Month, 3);
  EXPECT_EQ(event.Year, 2004);
}

TEST(Read_Event_Line, Takes_no_byte_but_digits_signs_and_blanks_for_a_number) {
  for (const char byte : All_Bytes()) {
    if ((byte >= '0' && byte <= '9') || byte == ' ' || byte == '/' || byte == '=') continue;
    // A sign may stand in front, but not behind.
    EXPECT_EQ(Error_Of_Line(std::string("5") + byte + "/3/2004=Tea"), 13) << static_cast<int>(byte);
    EXPECT_EQ(Error_Of_Line(std::string("5/3/2004") + byte + "=Tea"), 13) << static_cast<int>(byte);
    if (byte == '+' || byte == '-') continue;
    EXPECT_EQ(Error_Of_Line(std::string("5/") + byte + "3/2004=Tea"), 13) << static_cast<int>(byte);
  }
}

// The way for the usual dates must give what the way for all others gives.
TEST(Read_Event_Line, Reads_every_short_field_as_any_number_is_read) {
  const std::string letters = "0159 -+x";
  std::vector<std::string> fields{""};
  for (std::size_t first = 0, length = 0; length < 4; ++length) {
    const std::size_t end = fields.size();
    for (; first < end; ++first)
      for (const char letter : letters) fields.push_back(fields[first] + letter);
  }
  for (const std::string& field : fields) {
    int day = 0;
    const int error = Error_Of([&] { day = Read_Event_Line(field + "/1/2000=").Day.Value(); });
    int expected = 0;
    EXPECT_EQ(error, Error_Of([&] { expected = basic::To_Int16(field).Value(); })) << '"' << field << '"';
    EXPECT_EQ(day, expected) << '"' << field << '"';
  }
}

TEST(Date_Key, Has_no_leading_zeros) {
  EXPECT_EQ(events::Date_Key(5, 3, 2004), "5/3/2004");
  EXPECT_EQ(events::Date_Key(31, 12, 9999), "31/12/9999");
}

TEST(Every_Year_Form, Puts_9999_in_place_of_the_last_four_characters) {
  EXPECT_EQ(events::Every_Year_Form("5/3/2004"), "5/3/9999");
  EXPECT_EQ(events::Every_Year_Form("31/12/9999"), "31/12/9999");
  EXPECT_EQ(events::Every_Year_Form("2004"), "9999");
  EXPECT_EQ(events::Every_Year_Form("5/3/100"), "5/39999") << "a year of three digits isn't looked for";
}

TEST(Every_Year_Form, Throws_error_5_for_a_shorter_text) {
  for (const char* const key : {"", "1", "1/1"}) EXPECT_EQ(Error_Of([&] { events::Every_Year_Form(key); }), 5) << key;
}
