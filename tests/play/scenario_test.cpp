#include "scenario.h"

#include <gtest/gtest.h>

using play::Read_Scenario;
using Words = std::vector<std::string>;

namespace {

/// The line of the error that the text is refused with, 0 if it is read.
int Line_Of_Error(std::string_view text) {
  try {
    Read_Scenario(text);
    return 0;
  } catch (const play::Scenario_Error& error) {
    return error.Line;
  }
}

}  // namespace

TEST(Scenario_Test, Each_line_is_a_command_of_words) {
  const auto commands = Read_Scenario("now 2004-03-05 09:00:00\nstart\n");
  ASSERT_EQ(commands.size(), 2U);
  EXPECT_EQ(commands[0].Name, "now");
  EXPECT_EQ(commands[0].Words, (Words{"2004-03-05", "09:00:00"}));
  EXPECT_EQ(commands[1].Name, "start");
  EXPECT_EQ(commands[1].Line, 2);
}

TEST(Scenario_Test, Empty_lines_and_comments_dont_count) {
  const auto commands = Read_Scenario("\n  \t\n# note\n  # note\nstart");
  ASSERT_EQ(commands.size(), 1U);
  EXPECT_EQ(commands[0].Line, 5);
}

TEST(Scenario_Test, A_sign_of_a_comment_within_a_line_is_a_word) {
  EXPECT_EQ(Read_Scenario("say # x")[0].Words, (Words{"#", "x"}));
}

TEST(Scenario_Test, Lines_may_end_in_CR_LF_and_words_stand_wide_apart) {
  EXPECT_EQ(Read_Scenario("  say   a\tb  \r\n")[0].Words, (Words{"a", "b"}));
}

TEST(Scenario_Test, Quoted_words_hold_blanks_and_escapes) {
  EXPECT_EQ(Read_Scenario(R"(type X "a b" "" "\n\r\t\\\"\xE4\x0a")")[0].Words,
            (Words{"X", "a b", "", "\n\r\t\\\"\xE4\n"}));
}

TEST(Scenario_Test, Bytes_are_taken_as_they_are) { EXPECT_EQ(Read_Scenario("say M\xE4rz")[0].Words, Words{"M\xE4rz"}); }

TEST(Scenario_Test, A_backslash_in_a_bare_word_stands_for_itself) {
  EXPECT_EQ(Read_Scenario("cat Seasons\\new.ini")[0].Words, Words{"Seasons\\new.ini"});
}

TEST(Scenario_Test, What_cant_be_read_is_told_by_its_line) {
  for (const char* const line :
       {R"(say "open)", R"(say "a"b)", R"(say a"b)", R"(say "\q")", R"(say "\x4")", R"(say "\)"})
    EXPECT_EQ(Line_Of_Error("start\n" + std::string(line) + "\nstart"), 2) << line;
}

TEST(Scenario_Test, A_file_may_stand_in_the_lines_that_follow) {
  const auto commands = Read_Scenario("put f <<END\n\"5/3/2004=x\"\n\n# END\nEND\nstart\n");
  ASSERT_EQ(commands.size(), 2U);
  EXPECT_EQ(commands[0].Words, (Words{"f", "\"5/3/2004=x\"\r\n\r\n# END\r\n"}));
  EXPECT_EQ(commands[1].Line, 6);
}

TEST(Scenario_Test, A_quoted_text_stands_for_itself) {
  EXPECT_EQ(Read_Scenario("put f \"<<END\"")[0].Words, (Words{"f", "<<END"}));
}

TEST(Scenario_Test, A_file_without_its_end_cant_be_read) { EXPECT_EQ(Line_Of_Error("\nput f <<END\nx\n"), 2); }
