#include "basic/text.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"

using basic::Double_Ampersands;
using basic::Replace_All;
using basic::Same_Letters;
using basic::Single_Ampersands;
using basic::Split_At_First;
using basic::Trim_Blanks;
using basic::Upper_Case;

TEST(Trim_Blanks, Takes_blanks_from_both_ends_and_leaves_those_inside) {
  EXPECT_EQ(Trim_Blanks("  a b  "), "a b");
  EXPECT_EQ(Trim_Blanks("a"), "a");
  EXPECT_EQ(Trim_Blanks(" a"), "a");
  EXPECT_EQ(Trim_Blanks("a "), "a");
  EXPECT_EQ(Trim_Blanks("    "), "");
  EXPECT_EQ(Trim_Blanks(""), "");
}

TEST(Trim_Blanks, Leaves_tabs_line_ends_and_hard_blanks) {
  EXPECT_EQ(Trim_Blanks(" \ta\t "), "\ta\t");
  EXPECT_EQ(Trim_Blanks(" \r\na\r\n "), "\r\na\r\n");
  EXPECT_EQ(Trim_Blanks("\xA0"
                        "a"),
            "\xA0"
            "a");
}

TEST(Same_Letters, Disregards_the_case_of_a_to_z_only) {
  EXPECT_TRUE(Same_Letters("Default", "dEFAULT"));
  EXPECT_TRUE(Same_Letters("", ""));
  EXPECT_TRUE(Same_Letters("abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
  EXPECT_FALSE(Same_Letters("Default", "Default "));
  EXPECT_FALSE(Same_Letters("Default", "Defaul"));
  EXPECT_FALSE(Same_Letters("\xE4", "\xC4")) << "an umlaut has its case";
  EXPECT_FALSE(Same_Letters("@", "`")) << "the characters just below the letters";
  EXPECT_FALSE(Same_Letters("[", "{")) << "the characters just above the letters";
}

TEST(Upper_Case, Changes_a_to_z_and_no_other_byte) {
  for (int code = 0; code < 256; ++code) {
    const std::string one(1, static_cast<char>(code));
    const bool small = code >= 'a' && code <= 'z';
    EXPECT_EQ(Upper_Case(one), std::string(1, static_cast<char>(small ? code - 32 : code))) << code;
  }
  EXPECT_EQ(Upper_Case("Calendar.Dat"), "CALENDAR.DAT");
}

TEST(Replace_All, Replaces_from_left_to_right) {
  EXPECT_EQ(Replace_All("one two one", "one", "1"), "1 two 1");
  EXPECT_EQ(Replace_All("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace_All("", "a", "b"), "");
  EXPECT_EQ(Replace_All("abc", "x", "y"), "abc");
  EXPECT_EQ(Replace_All("a\"b\"", "\"", "'"), "a'b'");
  EXPECT_EQ(Replace_All("abab", "ab", ""), "");
}

TEST(Replace_All, Looks_at_nothing_twice) {
  EXPECT_EQ(Replace_All("a", "a", "aa"), "aa");
  EXPECT_EQ(Replace_All("aab", "ab", "b"), "ab") << "what a replacement leaves behind isn't replaced again";
}

TEST(Replace_All, Passes_over_embedded_zeros) {
  const std::string text("a\0&b", 4);
  EXPECT_EQ(Replace_All(text, "&", "&&"), std::string("a\0&&b", 5));
}

TEST(Double_Ampersands, Doubles_each_one) {
  EXPECT_EQ(Double_Ampersands("Tom & Jane"), "Tom && Jane");
  EXPECT_EQ(Double_Ampersands("&&"), "&&&&");
  EXPECT_EQ(Double_Ampersands("none"), "none");
}

TEST(Single_Ampersands, Makes_one_of_each_pair) {
  EXPECT_EQ(Single_Ampersands("Tom && Jane"), "Tom & Jane");
  EXPECT_EQ(Single_Ampersands("&&&&"), "&&");
  EXPECT_EQ(Single_Ampersands("&&&"), "&&") << "the odd one stays";
  EXPECT_EQ(Single_Ampersands("&"), "&");
}

TEST(Single_Ampersands, Gives_back_what_was_doubled) {
  for (int count = 0; count < 9; ++count) {
    const std::string text = "a" + std::string(static_cast<std::size_t>(count), '&') + "b&";
    EXPECT_EQ(Single_Ampersands(Double_Ampersands(text)), text);
  }
}

TEST(Split_At_First, Leaves_the_separator_out_of_both_halves) {
  const auto [left, right] = Split_At_First("5/3/2004=Dentist at nine", '=');
  EXPECT_EQ(left, "5/3/2004");
  EXPECT_EQ(right, "Dentist at nine");
}

TEST(Split_At_First, Counts_only_the_first_separator) {
  const auto [left, right] = Split_At_First("1/1/2005=1+1=2=", '=');
  EXPECT_EQ(left, "1/1/2005");
  EXPECT_EQ(right, "1+1=2=");
}

TEST(Split_At_First, Gives_empty_halves_at_the_ends) {
  EXPECT_EQ(Split_At_First("=text", '=').left, "");
  EXPECT_EQ(Split_At_First("=text", '=').right, "text");
  EXPECT_EQ(Split_At_First("date=", '=').left, "date");
  EXPECT_EQ(Split_At_First("date=", '=').right, "");
  EXPECT_EQ(Split_At_First("=", '=').left, "");
  EXPECT_EQ(Split_At_First("=", '=').right, "");
}

TEST(Split_At_First, Throws_error_5_without_a_separator) {
  EXPECT_EQ(Error_Of([] { Split_At_First("no date", '='); }), 5);
  EXPECT_EQ(Error_Of([] { Split_At_First("", '='); }), 5);
}
