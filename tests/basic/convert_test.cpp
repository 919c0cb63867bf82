#include "basic/convert.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

#include "tests/basic/error_of.h"

using basic::Int16;
using basic::Read_Decimal;
using basic::To_Boolean;
using basic::To_Int16;
using basic::To_Int32;
using basic::To_Text;

namespace {

int Error_Of_Int16(std::string_view text) {
  return Error_Of([=] { To_Int16(text); });
}

int Error_Of_Int32(std::string_view text) {
  return Error_Of([=] { To_Int32(text); });
}

int Error_Of_Boolean(std::string_view text) {
  return Error_Of([=] { To_Boolean(text); });
}

std::string One_Byte(int code) { return {static_cast<char>(code)}; }

bool Is_Digit(int code) { return code >= '0' && code <= '9'; }

// Texts that are no number for any type.
constexpr std::string_view no_numbers[] = {
    "",     " ",     "    ",  "-",   "+",     "--1",       "++1",         "+-1",
    "- 1",  "+ 1",   "1-",    "1 2", ".",     "1,5",       "1e3",         "0x10",
    "&H10", "one",   "12a",   "a12", "\t1",   "1\t",       "1\r\n",       "\n1",
    "\xA0", "1\xA0", "\"1\"", "1/2", "True1", "00000000x", "9999999999x", "99999999999999999999x"};

}  // namespace

TEST(To_Int16, Reads_every_number_of_16_bits) {
  for (int number = -32768; number <= 32767; ++number) {
    ASSERT_EQ(To_Int16(std::to_string(number)).Value(), number);
  }
}

TEST(To_Int16, Passes_over_blanks_around_the_number) {
  EXPECT_EQ(To_Int16("   42").Value(), 42);
  EXPECT_EQ(To_Int16("42   ").Value(), 42);
  EXPECT_EQ(To_Int16("  -42  ").Value(), -42);
}

TEST(To_Int16, Takes_a_sign_and_leading_zeros) {
  EXPECT_EQ(To_Int16("+7").Value(), 7);
  EXPECT_EQ(To_Int16("-0").Value(), 0);
  EXPECT_EQ(To_Int16("+0").Value(), 0);
  EXPECT_EQ(To_Int16("007").Value(), 7);
  EXPECT_EQ(To_Int16(std::string(1000, '0') + "32767").Value(), 32767);
  EXPECT_EQ(To_Int16("-" + std::string(1000, '0') + "32768").Value(), -32768);
}

TEST(To_Int16, Throws_overflow_outside_its_range) {
  EXPECT_EQ(Error_Of_Int16("32768"), 6);
  EXPECT_EQ(Error_Of_Int16("-32769"), 6);
  EXPECT_EQ(Error_Of_Int16("65536"), 6) << "must not wrap to 0";
  EXPECT_EQ(Error_Of_Int16("4294967296"), 6) << "must not wrap to 0 in 32 bits";
  EXPECT_EQ(Error_Of_Int16("18446744073709551616"), 6) << "must not wrap to 0 in 64 bits";
  EXPECT_EQ(Error_Of_Int16("-18446744073709551616"), 6);
  EXPECT_EQ(Error_Of_Int16(std::string(100000, '9')), 6);
  EXPECT_EQ(Error_Of_Int16("-" + std::string(100000, '9')), 6);
  EXPECT_EQ(Error_Of_Int16("1" + std::string(100000, '0')), 6);
}

TEST(To_Int16, Throws_type_mismatch_for_what_is_no_number) {
  for (const std::string_view text : no_numbers) EXPECT_EQ(Error_Of_Int16(text), 13) << text;
}

TEST(To_Int16, Throws_type_mismatch_for_a_fraction) {
  for (const std::string_view text : {"1.5", "1.0", "1.", ".5"}) EXPECT_EQ(Error_Of_Int16(text), 13) << text;
}

TEST(To_Int16, Throws_type_mismatch_even_behind_an_overflow) {
  EXPECT_EQ(Error_Of_Int16(std::string(1000, '9') + "x"), 13);
}

TEST(To_Int16, Throws_type_mismatch_for_an_embedded_zero) {
  EXPECT_EQ(Error_Of_Int16(std::string_view("\0", 1)), 13);
  EXPECT_EQ(Error_Of_Int16(std::string_view("1\0", 2)), 13);
  EXPECT_EQ(Error_Of_Int16(std::string_view("\0"
                                            "1",
                                            2)),
            13);
  EXPECT_EQ(Error_Of_Int16(std::string_view("1\0"
                                            "2",
                                            3)),
            13);
}

TEST(To_Int16, Takes_of_all_single_bytes_the_digits_alone) {
  for (int code = 0; code < 256; ++code) {
    if (Is_Digit(code)) EXPECT_EQ(To_Int16(One_Byte(code)).Value(), code - '0');
    else EXPECT_EQ(Error_Of_Int16(One_Byte(code)), 13) << code;
  }
}

TEST(To_Int16, Bears_before_and_behind_a_digit_only_blanks_digits_and_a_sign_in_front) {
  for (int code = 0; code < 256; ++code) {
    const bool in_front = code == ' ' || code == '+' || code == '-' || Is_Digit(code);
    const bool behind = code == ' ' || Is_Digit(code);
    EXPECT_EQ(Error_Of_Int16(One_Byte(code) + "5"), in_front ? 0 : 13) << code;
    EXPECT_EQ(Error_Of_Int16("5" + One_Byte(code)), behind ? 0 : 13) << code;
  }
}

TEST(To_Int32, Reads_the_whole_range_and_throws_overflow_beyond_it) {
  EXPECT_EQ(To_Int32("2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(To_Int32("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(To_Int32("-2147483630"), -2147483630);
  EXPECT_EQ(To_Int32(" +16777215 "), 16777215);
  EXPECT_EQ(Error_Of_Int32("2147483648"), 6);
  EXPECT_EQ(Error_Of_Int32("-2147483649"), 6);
  EXPECT_EQ(Error_Of_Int32("4294967296"), 6);
  EXPECT_EQ(Error_Of_Int32("1099511627776"), 6);
  EXPECT_EQ(Error_Of_Int32("18446744073709551616"), 6);
  EXPECT_EQ(Error_Of_Int32(std::string(100000, '9')), 6);
}

TEST(To_Int32, Throws_type_mismatch_for_what_is_no_number) {
  for (const std::string_view text : no_numbers) EXPECT_EQ(Error_Of_Int32(text), 13) << text;
}

TEST(To_Int32, Reads_back_what_To_Text_wrote) {
  for (std::int64_t number = std::numeric_limits<std::int32_t>::min();
       number <= std::numeric_limits<std::int32_t>::max(); number += 98'765'43) {
    const auto value = static_cast<std::int32_t>(number);
    ASSERT_EQ(To_Int32(To_Text(value)), value);
  }
}

TEST(To_Boolean, Takes_the_two_words_in_any_case) {
  for (const std::string_view text : {"True", "true", "TRUE", "tRuE", " True "}) EXPECT_TRUE(To_Boolean(text)) << text;
  for (const std::string_view text : {"False", "false", "FALSE", "  False"}) EXPECT_FALSE(To_Boolean(text)) << text;
}

TEST(To_Boolean, Takes_a_number_of_which_zero_alone_is_false) {
  for (const std::string_view text : {"1", "-1", "2", "32768", "-2147483648", "2147483647", " 7 ", "+1"})
    EXPECT_TRUE(To_Boolean(text)) << text;
  for (const std::string_view text : {"0", "-0", "+0", "000", " 0 "}) EXPECT_FALSE(To_Boolean(text)) << text;
}

TEST(To_Boolean, Takes_a_number_of_any_size_and_with_a_fraction) {
  for (const std::string_view text : {"2147483648", "-2147483649", "4294967296", "18446744073709551616", "0.5", "-.001",
                                      "1.", "1.5", " 10.0 ", "0.000000000000000000000000000000000000000000000001"})
    EXPECT_TRUE(To_Boolean(text)) << text;
  EXPECT_TRUE(To_Boolean("1" + std::string(100000, '0')));
  for (const std::string_view text : {"0.0", ".0", "0.", "-0.00", "+000.000"}) EXPECT_FALSE(To_Boolean(text)) << text;
}

TEST(To_Boolean, Throws_type_mismatch_for_other_texts) {
  for (const std::string_view text : no_numbers) EXPECT_EQ(Error_Of_Boolean(text), 13) << text;
  for (const std::string_view text : {"Tru", "Truee", "T", "yes", "no", "on", "TrueFalse", "F alse"})
    EXPECT_EQ(Error_Of_Boolean(text), 13) << text;
  EXPECT_EQ(Error_Of_Boolean(std::string_view("True\0", 5)), 13);
}

TEST(Read_Decimal, Takes_a_number_apart) {
  const basic::Decimal number = Read_Decimal(" -0012.3400 ");
  EXPECT_TRUE(number.Negative);
  EXPECT_EQ(number.Whole, "12");
  EXPECT_EQ(number.Fraction, "34");
  EXPECT_FALSE(number.Is_Zero());
  EXPECT_EQ(Read_Decimal("100").Whole, "100");
  EXPECT_EQ(Read_Decimal(".05").Fraction, "05");
  EXPECT_TRUE(Read_Decimal("-0.0").Is_Zero());
  for (const std::string_view text : {"1.2.3", "1..", "-.", "+", "1 .5", "1. 5", ".-5", "1.5x", "1.5e3"})
    EXPECT_EQ(Error_Of([=] { Read_Decimal(text); }), 13) << text;
}

TEST(To_Text, Writes_numbers_without_blanks_or_leading_zeros) {
  EXPECT_EQ(To_Text(0), "0");
  EXPECT_EQ(To_Text(-5), "-5");
  EXPECT_EQ(To_Text(9999), "9999");
  EXPECT_EQ(To_Text(std::numeric_limits<std::int32_t>::min()), "-2147483648");
  EXPECT_EQ(To_Text(std::numeric_limits<std::int32_t>::max()), "2147483647");
  EXPECT_EQ(To_Text(Int16(-32768)), "-32768");
  EXPECT_EQ(To_Text(Int16(32767)), "32767");
}

TEST(To_Text, Writes_a_flag_as_a_word) {
  EXPECT_EQ(To_Text(true), "True");
  EXPECT_EQ(To_Text(false), "False");
}
