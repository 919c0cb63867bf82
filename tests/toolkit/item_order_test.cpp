#include "toolkit/item_order.h"

#include <gtest/gtest.h>

using toolkit::Sorts_Before;

namespace {

using Texts = std::vector<std::string>;

Texts Sorted(Texts texts) {
  std::stable_sort(texts.begin(), texts.end(), Sorts_Before);
  return texts;
}

bool Told_Apart(std::string_view a, std::string_view b) { return Sorts_Before(a, b) || Sorts_Before(b, a); }

}  // namespace

TEST(Item_Order, Signs_stand_before_digits_and_digits_before_letters) {
  EXPECT_EQ(Sorted({"a", "9", "~", "0", "Z", "=", " ", "-"}), (Texts{" ", "-", "=", "~", "0", "9", "a", "Z"}));
}

TEST(Item_Order, Counters_with_a_sign_behind_them_sort_as_texts) {
  EXPECT_EQ(Sorted({"20=x", "2=x", "11=x", "10=x", "1=x", "0=x"}),
            (Texts{"0=x", "1=x", "10=x", "11=x", "2=x", "20=x"}));
}

TEST(Item_Order, Of_two_signs_the_one_with_the_lower_code_stands_first) {
  EXPECT_TRUE(Sorts_Before("38051(evr|yar)=Zoo", "38051=Ape"));
  EXPECT_FALSE(Sorts_Before("38051=Ape", "38051(evr|yar)=Zoo"));
}

TEST(Item_Order, A_beginning_stands_before_the_whole) {
  EXPECT_EQ(Sorted({"ab", "a", "", "abc"}), (Texts{"", "a", "ab", "abc"}));
  EXPECT_TRUE(Sorts_Before("E", "\xE9t\xE9"));
}

TEST(Item_Order, Case_never_tells_texts_apart) {
  EXPECT_FALSE(Told_Apart("DENTIST", "dentist"));
  EXPECT_EQ(Sorted({"b", "A", "a", "B"}), (Texts{"A", "a", "b", "B"})) << "each in the order of its coming";
  for (const auto& [small, capital] : std::vector<std::pair<std::string_view, std::string_view>>{
           {"\xE9", "\xC9"}, {"\xFC", "\xDC"}, {"\x9A", "\x8A"}, {"\x9C", "\x8C"}, {"\x9E", "\x8E"}, {"\xFF", "\x9F"}})
    EXPECT_FALSE(Told_Apart(small, capital)) << small;
}

TEST(Item_Order, Accents_count_only_where_nothing_else_tells_the_texts_apart) {
  EXPECT_TRUE(Sorts_Before("\xC9t\xE9 1", "ete 2"));
  EXPECT_TRUE(Sorts_Before("\xE4", "b"));
  EXPECT_TRUE(Sorts_Before("a", "\xE4"));
  EXPECT_FALSE(Sorts_Before("\xE4", "a"));
  EXPECT_EQ(Sorted({"cot\xE9s", "cot\xE9", "cotes", "cote"}), (Texts{"cote", "cot\xE9", "cotes", "cot\xE9s"}));
}

TEST(Item_Order, The_two_signs_among_the_accented_letters_are_signs) {
  for (const char sign : {'\xD7', '\xF7'}) {
    const std::string text(1, sign);
    EXPECT_TRUE(Sorts_Before(text, "0"));
    EXPECT_TRUE(Sorts_Before("=", text));
  }
}

TEST(Item_Order, Is_an_order_of_all_characters) {
  Texts all;
  for (int c = 1; c < 256; ++c) all.emplace_back(1, static_cast<char>(c));
  const Texts sorted = Sorted(all);
  for (std::size_t i = 0; i < sorted.size(); ++i)
    for (std::size_t j = i; j < sorted.size(); ++j) EXPECT_FALSE(Sorts_Before(sorted[j], sorted[i])) << i << ' ' << j;
}
