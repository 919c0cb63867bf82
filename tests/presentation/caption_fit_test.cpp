#include "presentation/caption_fit.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/basic/error_of.h"
#include "tests/presentation/fit_by_the_letter.h"

using presentation::Fit_One_Line;
using presentation::Fit_Three_Lines;
using presentation::Get_Line;

namespace {

/// Every character has a width of its own, or all have the same; line ends have none.
class Fake_Measure final : public presentation::Text_Measure {
 public:
  explicit Fake_Measure(double each = 0) : each_(each) {}

  [[nodiscard]] double Width(std::string_view text) const override {
    double width = 0;
    for (const char c : text) width += Width_Of(c);
    return width;
  }

  [[nodiscard]] std::size_t Longest_Beginning(std::string_view text, double limit) const override {
    std::size_t length = text.size();
    while (length > 0 && Width(text.substr(0, length)) >= limit) --length;
    return length;
  }

 private:
  [[nodiscard]] double Width_Of(char c) const {
    if (c == '\r' || c == '\n') return 0;
    return each_ != 0 ? each_ : 15 * (1 + static_cast<unsigned char>(c) % 9);
  }

  double each_;
};

const Fake_Measure ten(10);  // a line of width 100 takes 10 characters, of width 101 as well

std::string Line(const std::string& text, double width) { return std::string(Get_Line(text, width, ten)); }
std::string Three(const std::string& text, double width) { return Fit_Three_Lines(text, width, ten); }
std::string One(const std::string& text, double width) { return Fit_One_Line(text, width, ten); }

/// A text of the letters, up to `most` characters long.
std::string Random_Text(std::mt19937& numbers, const std::string& letters, std::size_t most) {
  std::string text(numbers() % (most + 1), ' ');
  for (char& c : text) c = letters[numbers() % letters.size()];
  return text;
}

const std::string sets_of_letters[] = {"ab ",       "a ", "abcdefgh    ", "abcdefghijklmnopqrstuvwxyz ", " ",
                                       "ab&\r\n .", "ab"};

}  // namespace

TEST(Get_Line, Takes_as_many_words_as_fit_with_the_blank_behind_the_last) {
  EXPECT_EQ(Line("one two three four", 100), "one two ");
  EXPECT_EQ(Line("one two three four", 79), "one ");
}

TEST(Get_Line, Goes_on_growing_at_the_exact_width) {
  EXPECT_EQ(Line("one two three four", 80), "one two ");
  EXPECT_EQ(Line("123456789 12 34", 100), "123456789 ");
  EXPECT_EQ(Line("12 45 789 1 34", 100), "12 45 789 ");
}

TEST(Get_Line, Gives_the_whole_text_when_it_runs_out_of_blanks) {
  EXPECT_EQ(Line("123456789012345", 100), "123456789012345");
  EXPECT_EQ(Line("12 345678901234567890", 100), "12 345678901234567890");
  EXPECT_EQ(Line("12 45 78901234567890", 100), "12 45 78901234567890");
  EXPECT_EQ(Line("", 100), "");
}

TEST(Get_Line, Cuts_a_first_word_that_is_too_wide_to_less_than_the_width) {
  EXPECT_EQ(Line("123456789012345 x", 100), "123456789");
  EXPECT_EQ(Line("123456789012345 x", 101), "1234567890");
  EXPECT_EQ(Line("123456789012345 x", 99), "123456789");
}

TEST(Get_Line, Gives_the_first_word_alone_where_its_blank_has_no_room) {
  EXPECT_EQ(Line("123456789 x", 99), "123456789");
  EXPECT_EQ(Line("1234567890 x", 100), "123456789") << "at the exact width the word is cut";
  EXPECT_EQ(Line("1234567890 x", 105), "1234567890");
}

TEST(Get_Line, Takes_blanks_for_words_of_nothing) {
  EXPECT_EQ(Line("             x", 100), "          ");
  EXPECT_EQ(Line(" 1234567890 x", 100), " ");
  EXPECT_EQ(Line("1  3   x", 40), "1  ") << "the next blank would make four, which fit";
}

TEST(Get_Line, Gives_nothing_where_no_character_fits) { EXPECT_EQ(Line("ab c", 10), ""); }

TEST(Fit_Three_Lines, Always_has_two_line_breaks) {
  EXPECT_EQ(Three("", 100), "\r\n\r\n");
  EXPECT_EQ(Three("123456789", 100), "123456789\r\n\r\n");
  EXPECT_EQ(Three("1234567 90", 100), "1234567 90\r\n\r\n") << "not narrower, but without a further blank";
}

TEST(Fit_Three_Lines, A_text_as_wide_as_the_caption_does_not_fit_whole) {
  EXPECT_EQ(Three("12 45 78 0", 101), "12 45 78 0\r\n\r\n");
  EXPECT_EQ(Three("12 45 7 90 ", 100), "12 45 7 \r\n90 \r\n");
}

TEST(Fit_Three_Lines, Goes_on_with_the_rest_of_the_text) {
  EXPECT_EQ(Three("one two three four", 100), "one two \r\nthree four\r\n");
  EXPECT_EQ(Three("one two three four ", 100), "one two \r\nthree \r\nfour ");
  EXPECT_EQ(Three("123456789012345 x", 100), "123456789\r\n012345 x\r\n");
}

TEST(Fit_Three_Lines, The_dots_replace_the_end_of_the_third_line) {
  EXPECT_EQ(Three("aaaaaa bbbbbb cccc dddddd e", 100), "aaaaaa \r\nbbbbbb \r\ncc...");
}

TEST(Fit_Three_Lines, The_dots_stand_behind_a_third_line_of_less_than_four_characters) {
  EXPECT_EQ(Three("aaaaaa bbbbbbbb cc dddddddd e", 100), "aaaaaa \r\nbbbbbbbb \r\ncc ...");
  EXPECT_EQ(Three("aaaaaa bbbbbbbb ccc dddddddd e", 100), "aaaaaa \r\nbbbbbbbb \r\nc...");
}

TEST(Fit_Three_Lines, A_third_line_without_a_further_blank_gets_its_dots_however_wide_it_is) {
  EXPECT_EQ(Three("aaaaaa bbbbbbbb cc ddddddddddddd", 100), "aaaaaa \r\nbbbbbbbb \r\ncc dddddddddd...");
}

TEST(Fit_Three_Lines, Breaks_at_blanks_alone) {
  EXPECT_EQ(Three("one\r\ntwo\tthree,four-five", 100), "one\r\ntwo\tthree,four-five\r\n\r\n");
}

TEST(Fit_One_Line, Keeps_a_text_that_is_narrower) {
  EXPECT_EQ(One("", 100), "");
  EXPECT_EQ(One("123456789", 100), "123456789");
  EXPECT_EQ(One("1234567890", 101), "1234567890");
}

TEST(Fit_One_Line, Cuts_at_any_character_and_three_more_for_the_dots) {
  EXPECT_EQ(One("1234567890", 100), "123456...");
  EXPECT_EQ(One("one two three", 100), "one tw...");
  EXPECT_EQ(One("1234567890123", 101), "1234567...");
}

TEST(Fit_One_Line, Can_come_down_to_the_dots) {
  EXPECT_EQ(One("12345", 31), "...");
  EXPECT_EQ(One("123", 31), "123");
}

TEST(Fit_One_Line, Throws_error_5_where_not_even_three_characters_fit) {
  EXPECT_EQ(Error_Of([] { One("12345", 30); }), 5);
  EXPECT_EQ(Error_Of([] { One("1", 10); }), 5);
  EXPECT_EQ(One("1", 11), "1");
}

// 735 and 870 are the widths of the calendar's captions.
TEST(Caption_Fit, Agrees_with_fitting_by_the_letter_on_random_texts) {
  std::mt19937 numbers(20040305);
  for (const double each : {0.0, 87.0, 90.0, 105.0, 145.0, 735.0 / 7, 70.5}) {
    const Fake_Measure measure(each);
    for (const double width : {735.0, 870.0, 600.0}) {
      Fit_By_The_Letter by_the_letter(width, measure);
      for (const std::string& letters : sets_of_letters) {
        for (int i = 0; i < 250; ++i) {
          const std::string text = Random_Text(numbers, letters, 45);
          ASSERT_EQ(Get_Line(text, width, measure), by_the_letter.Line(text)) << '"' << text << '"';
          ASSERT_EQ(Fit_Three_Lines(text, width, measure), by_the_letter.Three_Lines(text)) << '"' << text << '"';
          ASSERT_EQ(Fit_One_Line(text, width, measure), by_the_letter.One_Line(text)) << '"' << text << '"';
        }
      }
    }
  }
}

TEST(Caption_Fit, Agrees_with_fitting_by_the_letter_on_all_short_texts) {
  Fit_By_The_Letter by_the_letter(40, ten);
  for (int length = 0; length <= 13; ++length) {
    for (int bits = 0; bits < 1 << length; ++bits) {
      std::string text;
      for (int i = 0; i < length; ++i) text += (bits >> i & 1) != 0 ? ' ' : 'x';
      ASSERT_EQ(Get_Line(text, 40, ten), by_the_letter.Line(text)) << '"' << text << '"';
      ASSERT_EQ(Three(text, 40), by_the_letter.Three_Lines(text)) << '"' << text << '"';
      ASSERT_EQ(One(text, 40), by_the_letter.One_Line(text)) << '"' << text << '"';
    }
  }
}

TEST(Caption_Fit, Every_byte_is_a_character) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
  const Fake_Measure measure;
  Fit_By_The_Letter by_the_letter(735, measure);
  EXPECT_EQ(Fit_Three_Lines(text, 735, measure), by_the_letter.Three_Lines(text));
  EXPECT_EQ(Fit_One_Line(text, 735, measure), by_the_letter.One_Line(text));
}
