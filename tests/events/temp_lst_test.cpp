#include "events/temp_lst.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/basic/error_of.h"

using events::Temp_List;

namespace {

constexpr int most = 32767;

Temp_List List_Of(const std::vector<std::string>& lines) {
  Temp_List list;
  for (const std::string& line : lines) list.Append(line);
  return list;
}

std::vector<std::string> Lines_Of(const Temp_List& list) {
  std::vector<std::string> lines;
  for (int i = 0; i < list.Count().Value(); ++i) lines.push_back(list.Line(i));
  return lines;
}

}  // namespace

TEST(Temp_List, Starts_empty) { EXPECT_EQ(Temp_List().Count(), 0); }

TEST(Temp_List, Keeps_its_lines_in_their_order_unsorted) {
  EXPECT_EQ(Lines_Of(List_Of({"b", "a", "", "b"})), (std::vector<std::string>{"b", "a", "", "b"}));
}

TEST(Temp_List, Replaces_a_line_in_its_place) {
  Temp_List list = List_Of({"a", "b", "c"});
  list.Replace(1, "x");
  EXPECT_EQ(Lines_Of(list), (std::vector<std::string>{"a", "x", "c"}));
}

TEST(Temp_List, Closes_up_behind_a_removed_line) {
  Temp_List list = List_Of({"a", "b", "c"});
  list.Remove(0);
  EXPECT_EQ(Lines_Of(list), (std::vector<std::string>{"b", "c"}));
  list.Remove(1);
  EXPECT_EQ(Lines_Of(list), (std::vector<std::string>{"b"}));
}

TEST(Temp_List, Clears) {
  Temp_List list = List_Of({"a", "b"});
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  list.Append("c");
  EXPECT_EQ(list.Line(0), "c");
}

TEST(Temp_List, Throws_error_9_for_a_line_that_is_not_there) {
  Temp_List list = List_Of({"a", "b"});
  for (const int index : {-1, 2, most, -most - 1}) {
    EXPECT_EQ(Error_Of([&] { static_cast<void>(list.Line(index)); }), 9) << index;
    EXPECT_EQ(Error_Of([&] { list.Replace(index, "x"); }), 9) << index;
    EXPECT_EQ(Error_Of([&] { list.Remove(index); }), 9) << index;
  }
  EXPECT_EQ(Lines_Of(list), (std::vector<std::string>{"a", "b"}));
}

TEST(Temp_List, Holds_32767_lines_and_no_more) {
  Temp_List list;
  for (int i = 0; i < most; ++i) list.Append("line");
  EXPECT_EQ(Error_Of([&] { list.Append("one too many"); }), 6);
  EXPECT_EQ(list.Count(), most);
  EXPECT_EQ(list.Line(most - 1), "line");
  list.Remove(0);
  list.Append("last");
  EXPECT_EQ(list.Line(most - 1), "last");
  EXPECT_EQ(Error_Of([&] { list.Append("one too many"); }), 6);
}
