#include "basic/record_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/basic/read_by_the_letter.h"

using basic::Record_Reader;
using Records = std::vector<std::string>;

namespace {

Records Read(std::string_view bytes) {
  Records records;
  Record_Reader reader(bytes);
  for (std::string_view record; reader.Next(record);) records.emplace_back(record);
  return records;
}

}  // namespace

TEST(Record_Reader, Reads_quoted_records_without_their_quotes) {
  EXPECT_EQ(Read("\"5/3/2004=Dentist at nine\"\r\n\"25/12/9999=Christmas\"\r\n"),
            (Records{"5/3/2004=Dentist at nine", "25/12/9999=Christmas"}));
}

TEST(Record_Reader, Keeps_commas_line_breaks_and_blanks_inside_quotes) {
  EXPECT_EQ(Read("\"14/2/2005=Tom && Jane, dinner\"\r\n"), Records{"14/2/2005=Tom && Jane, dinner"});
  EXPECT_EQ(Read("\"1/1/2005=Line one\r\nLine two\"\r\n\"b\"\r\n"), (Records{"1/1/2005=Line one\r\nLine two", "b"}));
  EXPECT_EQ(Read("\"  a  \"\r\n"), Records{"  a  "});
  EXPECT_EQ(Read("\"a\nb\rc\"\r\n"), Records{"a\nb\rc"});
}

TEST(Record_Reader, Cuts_a_record_without_quotes_at_its_first_comma) {
  EXPECT_EQ(Read("1/1/2005=eggs, milk\r\n2/1/2005=tea\r\n"), (Records{"1/1/2005=eggs", "milk", "2/1/2005=tea"}));
}

TEST(Record_Reader, Passes_over_blanks_before_a_record_only) {
  EXPECT_EQ(Read("   1=a b  \r\n  \"x\"\r\n"), (Records{"1=a b  ", "x"}));
  EXPECT_EQ(Read("\t1\r\n"), Records{"\t1"});
}

TEST(Record_Reader, Takes_a_quote_inside_a_record_without_quotes_as_it_stands) {
  EXPECT_EQ(Read("say \"a,b\"\r\n"), (Records{"say \"a", "b\""}));
}

TEST(Record_Reader, Gives_an_empty_record_for_an_empty_line) {
  EXPECT_EQ(Read("\"a\"\r\n\r\n\"b\"\r\n"), (Records{"a", "", "b"}));
  EXPECT_EQ(Read("\r\n"), Records{""});
  EXPECT_EQ(Read("\r\n\r\n"), (Records{"", ""}));
  EXPECT_EQ(Read("   \r\n"), Records{""});
  EXPECT_EQ(Read("\"\"\r\n"), Records{""});
  EXPECT_EQ(Read(",,a"), (Records{"", "", "a"}));
}

TEST(Record_Reader, Gives_nothing_for_an_empty_file) {
  EXPECT_EQ(Read(""), Records{});
  EXPECT_EQ(Read(std::string_view()), Records{});
}

TEST(Record_Reader, Needs_no_line_end_behind_the_last_record) {
  EXPECT_EQ(Read("\"a\"\r\n\"b\""), (Records{"a", "b"}));
  EXPECT_EQ(Read("a\r\nb"), (Records{"a", "b"}));
  EXPECT_EQ(Read("a"), Records{"a"});
  EXPECT_EQ(Read("a\r\n "), (Records{"a", ""})) << "a blank is the beginning of another record";
}

TEST(Record_Reader, Reads_a_cut_off_quote_up_to_the_end) {
  EXPECT_EQ(Read("\"a\"\r\n\"5/3/2004=Dent"), (Records{"a", "5/3/2004=Dent"}));
  EXPECT_EQ(Read("\"a\r\nb,c\r\n"), Records{"a\r\nb,c\r\n"});
  EXPECT_EQ(Read("\""), Records{""});
}

TEST(Record_Reader, Drops_what_stands_behind_a_closing_quote) {
  EXPECT_EQ(Read("\"a\"junk\r\n\"b\"\r\n"), (Records{"a", "b"}));
  EXPECT_EQ(Read("\"a\" \"b\"\r\nc\r\n"), (Records{"a", "c"}));
  EXPECT_EQ(Read("\"a\"\"b\"\r\nc"), (Records{"a", "c"}));
  EXPECT_EQ(Read("\"a\",\"b\"\r\n"), (Records{"a", "b"}));
  EXPECT_EQ(Read("\"a\"junk"), Records{"a"});
}

TEST(Record_Reader, Takes_CR_LF_a_lone_CR_and_a_lone_LF_as_one_line_end_each) {
  EXPECT_EQ(Read("a\rb\nc\r\nd"), (Records{"a", "b", "c", "d"}));
  EXPECT_EQ(Read("\"a\"\r\"b\"\n\"c\""), (Records{"a", "b", "c"}));
  EXPECT_EQ(Read("a\n\rb"), (Records{"a", "", "b"}));
  EXPECT_EQ(Read("a\r\rb"), (Records{"a", "", "b"}));
  EXPECT_EQ(Read("a\r"), Records{"a"});
  EXPECT_EQ(Read("\"a\"\r"), Records{"a"});
}

TEST(Record_Reader, Takes_a_comma_in_front_of_a_line_end_and_the_line_end_as_two) {
  EXPECT_EQ(Read("\"a\",\r\n\"b\""), (Records{"a", "", "b"}));
}

TEST(Record_Reader, Keeps_every_byte_value_inside_quotes) {
  std::string all;
  for (int code = 0; code < 256; ++code)
    if (code != '"') all += static_cast<char>(code);
  EXPECT_EQ(Read("\"" + all + "\"\r\n\"b\"\r\n"), (Records{all, "b"}));
}

TEST(Record_Reader, Keeps_every_byte_value_but_the_delimiters_without_quotes) {
  for (int code = 0; code < 256; ++code) {
    const std::string record = "x" + std::string(1, static_cast<char>(code)) + "y";
    const bool delimits = code == ',' || code == '\r' || code == '\n';
    EXPECT_EQ(Read(record), delimits ? (Records{"x", "y"}) : Records{record}) << code;
  }
}

TEST(Record_Reader, Passes_over_no_byte_but_the_blank_in_front) {
  for (int code = 0; code < 256; ++code) {
    const std::string one(1, static_cast<char>(code));
    if (std::string_view("\",\r\n ").find(one) != std::string_view::npos) continue;
    EXPECT_EQ(Read(one + "\"y\""), Records{one + "\"y\""}) << code;
  }
}

TEST(Record_Reader, Reads_a_record_of_ten_megabytes) {
  std::string text;
  text.resize(10'000'000, 'x');
  text[5'000'000] = '\n';
  EXPECT_EQ(Read("\"" + text + "\"\r\n\"b\"\r\n"), (Records{text, "b"}));
  text[5'000'000] = 'x';
  EXPECT_EQ(Read(text + "\r\nb"), (Records{text, "b"}));
}

TEST(Record_Reader, Reads_more_records_than_a_16_bit_number_counts) {
  std::string bytes;
  for (int i = 0; i < 40000; ++i) bytes += "\"1/1/2005=x\"\r\n";
  EXPECT_EQ(Read(bytes).size(), 40000U);
}

TEST(Record_Reader, Leaves_the_record_as_it_was_at_the_end) {
  Record_Reader reader("\"last\"\r\n");
  std::string_view record;
  EXPECT_TRUE(reader.Next(record));
  EXPECT_FALSE(reader.Next(record));
  EXPECT_EQ(record, "last");
  EXPECT_FALSE(reader.Next(record)) << "the end stays the end";
}

TEST(Record_Reader, Gives_views_into_the_bytes_and_copies_nothing) {
  const std::string bytes = "\"abc\"\r\ndef";
  Record_Reader reader(bytes);
  std::string_view record;
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.data(), bytes.data() + 1);
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.data(), bytes.data() + 7);
}

TEST(Record_Reader, Agrees_with_reading_by_the_letter_on_all_short_texts) {
  const std::string alphabet = "a \",\r\n";
  for (std::size_t length = 0; length <= 7; ++length) {
    std::vector<std::size_t> digits(length, 0);
    for (;;) {
      std::string text;
      for (const std::size_t digit : digits) text += alphabet[digit];
      ASSERT_EQ(Read(text), Read_By_The_Letter(text)) << ::testing::PrintToString(text);
      std::size_t place = 0;
      while (place < length && ++digits[place] == alphabet.size()) digits[place++] = 0;
      if (place == length) break;
    }
  }
}
