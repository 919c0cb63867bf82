#include "packs/pack_values.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"

using packs::Find_Month_Value;
using packs::Get_Paper_BoxStyle;
using packs::Get_Paper_DisplayMode;
using packs::Get_Paper_Pos;

namespace {

int Error_Of_Lookup(const char* bytes) {
  return Error_Of([&] { Find_Month_Value(bytes, 1); });
}

/// The errors of the three fields of a value, in order.
std::string Errors_Of(const char* value) {
  std::string errors;
  for (const auto field : {Get_Paper_BoxStyle, Get_Paper_Pos, Get_Paper_DisplayMode})
    errors += std::to_string(Error_Of([&] { field(value); })) + " ";
  return errors;
}

}  // namespace

TEST(Find_Month_Value_Test, Finds_the_value_behind_the_first_equals_sign) {
  const char* const bytes = "1=1-0-2\r\n2=0-5-1\r\n12=a=b\r\n";
  EXPECT_EQ(Find_Month_Value(bytes, 1), "1-0-2");
  EXPECT_EQ(Find_Month_Value(bytes, 2), "0-5-1");
  EXPECT_EQ(Find_Month_Value(bytes, 12), "a=b");
}

TEST(Find_Month_Value_Test, Lines_may_stand_in_any_order) {
  const char* const bytes = "12=l\r\n3=c\r\n1=a\r\n";
  EXPECT_EQ(Find_Month_Value(bytes, 3), "c");
  EXPECT_EQ(Find_Month_Value(bytes, 1), "a");
}

TEST(Find_Month_Value_Test, A_month_without_a_line_has_an_empty_value) {
  EXPECT_EQ(Find_Month_Value("1=1-0-2\r\n", 2), "");
  EXPECT_EQ(Find_Month_Value("", 2), "");
}

TEST(Find_Month_Value_Test, The_last_line_of_a_month_counts) {
  EXPECT_EQ(Find_Month_Value("1=first\r\n2=x\r\n1=second\r\n", 1), "second");
  EXPECT_EQ(Find_Month_Value("1=first\r\n01=\r\n", 1), "");
}

TEST(Find_Month_Value_Test, Months_are_compared_as_numbers) {
  for (const char* const line : {"01=x", "001=x", "+1=x", " 1 =x", "1.0=x", "1.=x", "\" 1=x\""})
    EXPECT_EQ(Find_Month_Value(line, 1), "x") << line;
  for (const char* const line : {"11=x", "10=x", "-1=x", "1.5=x", ".1=x", "0=x", "100000000000000000001=x"})
    EXPECT_EQ(Find_Month_Value(line, 1), "") << line;
  EXPECT_EQ(Find_Month_Value("10=x", 10), "x");
}

TEST(Find_Month_Value_Test, Zero_has_no_sign) {
  EXPECT_EQ(Find_Month_Value("-0=x", 0), "x");
  EXPECT_EQ(Find_Month_Value(".0=x", 0), "x");
  EXPECT_EQ(Find_Month_Value("-2=x", -2), "x");
}

TEST(Find_Month_Value_Test, A_line_for_no_month_is_read_and_ignored) {
  EXPECT_EQ(Find_Month_Value("13=1-1-1\r\n1=a\r\n0=1-1-1\r\n", 1), "a");
}

TEST(Find_Month_Value_Test, A_month_that_is_no_number_fails_for_every_month) {
  for (const char* const line :
       {"Name=x", "=x", "  =x", "1a=x", "1 1=x", "1e0=x", "-=x", ".=x", "--1=x", "1.0.0=x", "&H1=x"})
    EXPECT_EQ(Error_Of_Lookup(line), 13) << line;
  EXPECT_EQ(Error_Of_Lookup("1=a\r\nTitle=x\r\n"), 13) << "behind a match too";
}

TEST(Find_Month_Value_Test, An_item_without_an_equals_sign_fails) {
  EXPECT_EQ(Error_Of_Lookup("1"), 5);
  EXPECT_EQ(Error_Of_Lookup("1=a\r\n\r\n"), 5) << "a blank line at the end";
  EXPECT_EQ(Error_Of_Lookup("1=a\r\n\r\n2=b\r\n"), 5) << "a blank line in between";
  EXPECT_EQ(Error_Of_Lookup("1=a\r\n   "), 5) << "blanks at the end";
  EXPECT_EQ(Error_Of_Lookup("[Months]\r\n1=a\r\n"), 5);
}

TEST(Find_Month_Value_Test, An_item_ends_at_a_comma_too) {
  EXPECT_EQ(Find_Month_Value("1=a,2=b\r\n", 1), "a");
  EXPECT_EQ(Find_Month_Value("1=a,2=b\r\n", 2), "b");
  EXPECT_EQ(Error_Of_Lookup("1=a,\r\n"), 5) << "an empty item behind the comma";
}

TEST(Find_Month_Value_Test, Blanks_before_an_item_and_quotes_around_it_do_not_count) {
  EXPECT_EQ(Find_Month_Value("   1=a\r\n  \"2=b, and c\"\r\n", 1), "a");
  EXPECT_EQ(Find_Month_Value("   1=a\r\n  \"2=b, and c\"\r\n", 2), "b, and c");
}

TEST(Find_Month_Value_Test, A_last_line_needs_no_end) { EXPECT_EQ(Find_Month_Value("1=a\r\n2=b", 2), "b"); }

TEST(Find_Month_Value_Test, Bytes_of_every_kind_are_a_value) {
  std::string bytes = "1=";
  for (int c = 1; c < 256; ++c)
    if (c != '\r' && c != '\n' && c != ',') bytes += static_cast<char>(c);
  EXPECT_EQ(Find_Month_Value(bytes, 1), bytes.substr(2));
}

TEST(Pack_Fields_Test, Are_split_at_the_dashes) {
  EXPECT_EQ(Get_Paper_BoxStyle("2-9-1"), 2);
  EXPECT_EQ(Get_Paper_Pos("2-9-1"), 9);
  EXPECT_EQ(Get_Paper_DisplayMode("2-9-1"), 1);
}

TEST(Pack_Fields_Test, Of_the_worked_example) {
  struct Month {
    const char* value;
    int style, position, mode;
  };
  for (const Month& month : {Month{"1-0-2", 1, 0, 2},
                             {"0-5-2", 0, 5, 2},
                             {"0-1-1", 0, 1, 1},
                             {"1-6-0", 1, 6, 0},
                             {"2-9-2", 2, 9, 2},
                             {"2-8-2", 2, 8, 2},
                             {"1-3-2", 1, 3, 2},
                             {"1-4-2", 1, 4, 2}}) {
    EXPECT_EQ(Get_Paper_BoxStyle(month.value), month.style) << month.value;
    EXPECT_EQ(Get_Paper_Pos(month.value), month.position) << month.value;
    EXPECT_EQ(Get_Paper_DisplayMode(month.value), month.mode) << month.value;
  }
}

TEST(Pack_Fields_Test, May_have_blanks_and_values_without_meaning) {
  EXPECT_EQ(Get_Paper_BoxStyle(" 7 - 99 - 5 "), 7);
  EXPECT_EQ(Get_Paper_Pos(" 7 - 99 - 5 "), 99);
  EXPECT_EQ(Get_Paper_DisplayMode(" 7 - 99 - 5 "), 5);
  EXPECT_EQ(Get_Paper_DisplayMode("1-1--2"), -2) << "all behind the second dash";
}

TEST(Pack_Fields_Test, A_value_without_dashes_fails) {
  EXPECT_EQ(Errors_Of(""), "5 5 5 ");
  EXPECT_EQ(Errors_Of("1"), "5 5 5 ");
}

TEST(Pack_Fields_Test, A_value_with_one_dash_has_a_style_alone) { EXPECT_EQ(Errors_Of("1-0"), "0 5 5 "); }

TEST(Pack_Fields_Test, A_value_with_three_dashes_has_no_display_mode) { EXPECT_EQ(Errors_Of("1-0-2-0"), "0 0 13 "); }

TEST(Pack_Fields_Test, Words_and_missing_numbers_fail) {
  EXPECT_EQ(Errors_Of("a-b-c"), "13 13 13 ");
  EXPECT_EQ(Errors_Of("--"), "13 13 13 ");
  EXPECT_EQ(Errors_Of("1-x-2"), "0 13 0 ");
  EXPECT_EQ(Errors_Of("1.5-0-2"), "13 0 0 ");
}

TEST(Pack_Fields_Test, Numbers_beyond_16_bits_fail) { EXPECT_EQ(Errors_Of("40000-40000-40000"), "6 6 6 "); }
