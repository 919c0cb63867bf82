#include "editor/edit_frm.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using editor::CountWords;

/// The place of the first blank from a place on, both counted from 1; 0 if there is none.
std::size_t Blank_From(const std::string& text, std::size_t place) {
  for (std::size_t i = place; i <= text.size(); ++i)
    if (text[i - 1] == ' ') return i;
  return 0;
}

/// The same count in single steps: a walk from blank to blank over places that count from 1.
std::int32_t Walked_Count(const std::string& text) {
  std::string s;
  for (const char c : text) s += c == '\r' || c == '\n' ? ' ' : c;
  std::int32_t count = 0;
  std::size_t p = Blank_From(s, 1);
  if (p > 1) count = 1;
  if (!s.empty() && p == 0) count = 1;
  while (p != 0) {
    count += 1;
    while (p + 1 <= s.size() && s[p] == ' ') p += 1;
    p = Blank_From(s, p + 1);
  }
  if (!s.empty() && s[s.size() - 1] == ' ') count -= 1;
  return count;
}

/// What a reader would count: the runs of characters between blanks and line ends.
std::int32_t Runs(const std::string& text) {
  std::int32_t runs = 0;
  bool within = false;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\r' || c == '\n';
    if (!blank && !within) ++runs;
    within = !blank;
  }
  return runs;
}

std::string Random_Text(std::mt19937& random, std::string_view letters, std::size_t longest) {
  std::string text(random() % (longest + 1), ' ');
  for (char& c : text) c = letters[random() % letters.size()];
  return text;
}

}  // namespace

TEST(Count_Words_Test, The_empty_text_has_no_word) { EXPECT_EQ(CountWords(""), 0); }

TEST(Count_Words_Test, A_text_without_a_blank_is_one_word) {
  EXPECT_EQ(CountWords("a"), 1);
  EXPECT_EQ(CountWords("Dentist"), 1);
  EXPECT_EQ(CountWords("&"), 1);
  EXPECT_EQ(CountWords(std::string(1, '\0')), 1);
}

TEST(Count_Words_Test, Blanks_between_words_count_once_however_many_they_are) {
  EXPECT_EQ(CountWords("two words"), 2);
  EXPECT_EQ(CountWords("two     words"), 2);
  EXPECT_EQ(CountWords("now three words"), 3);
}

TEST(Count_Words_Test, Blanks_at_the_ends_change_nothing) {
  EXPECT_EQ(CountWords(" one"), 1);
  EXPECT_EQ(CountWords("one "), 1);
  EXPECT_EQ(CountWords("   one   "), 1);
  EXPECT_EQ(CountWords("  two   words  "), 2);
}

TEST(Count_Words_Test, Blanks_alone_are_no_word) {
  EXPECT_EQ(CountWords(" "), 0);
  EXPECT_EQ(CountWords("          "), 0);
  EXPECT_EQ(CountWords("\r\n"), 0);
  EXPECT_EQ(CountWords("\r\n \n\r"), 0);
}

TEST(Count_Words_Test, A_line_end_parts_words) {
  EXPECT_EQ(CountWords("one\r\ntwo"), 2);
  EXPECT_EQ(CountWords("one\rtwo\nthree"), 3);
  EXPECT_EQ(CountWords("\r\none\r\n\r\ntwo\r\n"), 2);
}

TEST(Count_Words_Test, A_tab_and_the_hard_blank_are_part_of_a_word) {
  EXPECT_EQ(CountWords("one\ttwo"), 1);
  EXPECT_EQ(CountWords("\t"), 1);
  EXPECT_EQ(CountWords("one\xA0two"), 1);
  EXPECT_EQ(CountWords("one \t two"), 3);
}

TEST(Count_Words_Test, Random_texts_count_as_the_walk_from_blank_to_blank_does) {
  for (const std::string_view letters : {std::string_view(" a"), std::string_view(" \r\nab"),
                                         std::string_view("   \t&\"x\x80\xFF"), std::string_view("\0 \n", 3)}) {
    std::mt19937 random(20040305);
    for (int i = 0; i < 20000; ++i) {
      const std::string text = Random_Text(random, letters, 24);
      ASSERT_EQ(CountWords(text), Walked_Count(text)) << ::testing::PrintToString(text);
      ASSERT_EQ(CountWords(text), Runs(text)) << ::testing::PrintToString(text);
    }
  }
}

TEST(Count_Words_Test, A_long_text_is_walked_once) {
  constexpr std::size_t long_size = 4'000'000;
  EXPECT_EQ(CountWords(std::string(long_size, ' ')), 0);
  EXPECT_EQ(CountWords(std::string(long_size, 'x')), 1);
  std::string pairs;
  for (std::size_t i = 0; i < long_size; i += 2) pairs += "x ";
  EXPECT_EQ(CountWords(pairs), static_cast<std::int32_t>(long_size / 2));
}
