#include "basic/line_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/basic/error_of.h"

using basic::Line_Reader;
using Texts = std::vector<std::string>;

namespace {

Texts Lines(std::string_view bytes) {
  Texts lines;
  Line_Reader reader(bytes);
  while (!reader.At_End()) lines.emplace_back(reader.Next());
  return lines;
}

}  // namespace

TEST(Line_Reader_Test, A_line_ends_in_one_character_or_both) {
  EXPECT_EQ(Lines("a\r\nb\rc\nd"), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(Lines("a\n\rb\r\r\nc"), (Texts{"a", "", "b", "", "c"}));
}

TEST(Line_Reader_Test, The_last_line_may_lack_its_end) {
  EXPECT_EQ(Lines("a\r\nb\r\n"), (Texts{"a", "b"}));
  EXPECT_EQ(Lines("a\r\nb"), (Texts{"a", "b"}));
  EXPECT_EQ(Lines("\r\n"), Texts{""});
  EXPECT_EQ(Lines(""), Texts{});
}

TEST(Line_Reader_Test, All_other_bytes_belong_to_the_line) {
  const std::string bytes("\0 \x1A\"\t\xFF", 6);
  EXPECT_EQ(Lines(bytes + "\n"), Texts{bytes});
}

TEST(Line_Reader_Test, Reading_on_at_the_end_is_an_error) {
  Line_Reader reader("a");
  reader.Next();
  EXPECT_EQ(Error_Of([&] { reader.Next(); }), 62);
}
