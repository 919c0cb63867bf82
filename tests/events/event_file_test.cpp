#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/events/event_file_world.h"

namespace {

using Lines = std::vector<std::string>;

class Event_File_Test : public ::testing::Test, public Event_File_World {
 protected:
  void TearDown() override { EXPECT_EQ(Messages(), Lines()); }

  std::string Message_Of(const std::string& date) {
    Calendar.Selected_Date = date;
    return File.Get_Message();
  }

  int Every_Year_Lines() {
    int lines = 0;
    File.Get_Message([&] { ++lines; });
    return lines;
  }

  void Expect_Lines(const Lines& lines) {
    std::string expected;
    for (const std::string& line : lines) expected += Record(line);
    EXPECT_EQ(Content(), expected);
  }
};

std::string All_Bytes_But_The_Quote() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte)
    if (byte != '"') bytes += static_cast<char>(byte);
  return bytes;
}

}  // namespace

TEST_F(Event_File_Test, Load_Dates_looks_for_the_file_then_enters_each_line) {
  Put({"b", "a", "c"});
  Load_Dates();
  EXPECT_EQ(Calls, (Lines{"look", "enter", "enter", "enter"}));
  EXPECT_EQ(Entered, (Lines{"b", "a", "c"}));
}

TEST_F(Event_File_Test, Load_Dates_without_a_file_enters_nothing) {
  Load_Dates();
  EXPECT_EQ(Calls, Lines{"look"});
  EXPECT_FALSE(Is_There());
}

TEST_F(Event_File_Test, Load_Dates_counts_nothing) {
  Put(Lines(40'000, "1/1/2000=x"));
  Load_Dates();
  EXPECT_EQ(Entered.size(), 40'000U);
}

TEST_F(Event_File_Test, The_file_is_free_again_behind_each_procedure) {
  Put({"8/3/2004=Tea"});
  Editor.Text = "Cake";
  for (int i = 0; i < 2; ++i) {
    Load_Dates();
    File.Load_File();
    File.Get_Message();
    Change("8/3/2004", "Soup");
    Change("9/3/2004", "new");
    EXPECT_EQ(Files.Disk.Open_For_Writing, 0);
  }
}

TEST_F(Event_File_Test, Get_Message_is_empty_without_a_file_and_without_a_line) {
  EXPECT_EQ(Message_Of("8/3/2004"), "");
  Put({"8/3/2005=a", "08/3/2004=b", "8/3/2004 =c", "18/3/2004=d", "8/3/9998=e"});
  EXPECT_EQ(Message_Of("8/3/2004"), "");
  EXPECT_EQ(Every_Year_Lines(), 0);
}

TEST_F(Event_File_Test, Get_Message_gives_the_text_as_stored) {
  Put({"8/3/2004=a=b && \r\nc, "});
  EXPECT_EQ(Message_Of("8/3/2004"), "a=b && \r\nc, ");
}

TEST_F(Event_File_Test, Get_Message_takes_the_last_line_that_matches) {
  Put({"8/3/2004=dated", "8/3/9999=yearly", "9/3/9999=yearly", "9/3/2004=dated", "8/3/2005=other", "10/3/2004=a",
       "10/3/2004=b"});
  EXPECT_EQ(Message_Of("8/3/2004"), "yearly");
  EXPECT_EQ(Message_Of("9/3/2004"), "dated");
  EXPECT_EQ(Message_Of("10/3/2004"), "b");
  Put({"8/3/2004=first", "8/3/2004="});
  EXPECT_EQ(Message_Of("8/3/2004"), "") << "an empty text is a text";
}

TEST_F(Event_File_Test, Get_Message_tells_of_each_line_that_matches_and_is_of_every_year) {
  Calendar.Selected_Date = "8/3/2004";
  Put({"8/3/9999=yearly", "8/3/2004=dated"});
  EXPECT_EQ(File.Get_Message(), "dated");
  EXPECT_EQ(Every_Year_Lines(), 1);
  Put({"8/3/2004=dated", "9/3/9999=another day"});
  EXPECT_EQ(Every_Year_Lines(), 0);
}

TEST_F(Event_File_Test, Check_For_Pre_replaces_the_first_line_that_matches_in_its_place) {
  Put({"a=", "8/3/2004=one", "b=", "8/3/9999=two"});
  Change("8/3/2004", "T && J");
  Expect_Lines({"a=", "8/3/2004=T && J", "b=", "8/3/9999=two"});
  Editor.Every_Year = true;
  Change("8/3/2005", "x");
  Expect_Lines({"a=", "8/3/2004=T && J", "b=", "8/3/9999=x"});
  Editor.Every_Year = false;
  Change("8/3/2006", "x");
  Expect_Lines({"a=", "8/3/2004=T && J", "b=", "8/3/2006=x"});
}

TEST_F(Event_File_Test, Check_For_Pre_takes_its_text_from_its_argument_when_it_replaces) {
  Put({"8/3/2004=one"});
  Editor.Text = "of the editor";
  Change("8/3/2004", "of the argument");
  Expect_Lines({"8/3/2004=of the argument"});
}

TEST_F(Event_File_Test, Check_For_Pre_removes_the_first_line_that_matches_for_an_empty_text) {
  Put({"a=", "8/3/9999=one", "b=", "8/3/2004=two"});
  Editor.Text = "typed";
  Change("8/3/2004", "");
  Expect_Lines({"a=", "b=", "8/3/2004=two"});
  Change("8/3/2004", "");
  Expect_Lines({"a=", "b="});
}

TEST_F(Event_File_Test, Check_For_Pre_adds_the_text_of_the_editor_at_the_end_where_no_line_matches) {
  Put({"a="});
  Editor.Text = "T && J";
  Change("8/3/2004", "of the argument");
  Expect_Lines({"a=", "8/3/2004=T && J"});
  Editor.Every_Year = true;
  Change("9/3/2004", "");
  Expect_Lines({"a=", "8/3/2004=T && J", "9/3/9999=T && J"});
}

TEST_F(Event_File_Test, Check_For_Pre_writes_nothing_where_the_editor_is_empty_and_no_line_matches) {
  Content() = "a=\nb=";
  Change("8/3/2004", "of the argument");
  EXPECT_EQ(Content(), "a=\nb=");
  Files.Disk.Contents.clear();
  Change("8/3/2004", "");
  EXPECT_FALSE(Is_There());
}

TEST_F(Event_File_Test, Check_For_Pre_throws_error_5_at_a_line_without_an_equals_sign) {
  Put({"8/3/2004=Tea", "bad", "9/3/2004=Cake"});
  const std::string before = Content();
  EXPECT_EQ(Error_Of([&] { Change("9/3/2004", ""); }), 5);
  EXPECT_EQ(Content(), before);
  Change("8/3/2004", "");
  Expect_Lines({"bad", "9/3/2004=Cake"});
}

TEST_F(Event_File_Test, A_missing_file_leaves_the_lines_of_the_last_reading) {
  Put({"8/3/2004=Tea", "9/3/2004=Cake"});
  File.Load_File();
  Files.Disk.Contents.clear();
  Change("8/3/2004", "Soup");
  Expect_Lines({"8/3/2004=Soup", "9/3/2004=Cake"});
}

TEST_F(Event_File_Test, A_new_line_is_not_in_memory) {
  Put({"9/3/2004=Cake"});
  Editor.Text = "Tea";
  Change("8/3/2004", "Tea");
  Files.Disk.Contents.clear();
  Change("10/3/2004", "Tea");
  Expect_Lines({"9/3/2004=Cake", "10/3/2004=Tea"});
}

TEST_F(Event_File_Test, Every_byte_goes_through_a_change_and_a_reading_unchanged) {
  const std::string text = All_Bytes_But_The_Quote();
  Put({"1/1/2000=" + text});
  Editor.Text = "new";
  Change("8/3/2004", "new");
  Expect_Lines({"1/1/2000=" + text, "8/3/2004=new"});
  EXPECT_EQ(Message_Of("1/1/2000"), text);
  Change("1/1/2000", text + "!");
  Expect_Lines({"1/1/2000=" + text + "!", "8/3/2004=new"});
}

TEST_F(Event_File_Test, A_record_of_ten_megabytes_is_read_changed_and_kept) {
  std::string text(10'000'000, 'x');
  for (std::size_t i = 0; i < text.size(); i += 997) text[i] = i % 2 == 0 ? '\n' : ',';
  Put({"1/1/2000=" + text, "8/3/2004=Tea"});
  Load_Dates();
  EXPECT_EQ(Entered, (Lines{"1/1/2000=" + text, "8/3/2004=Tea"}));
  EXPECT_EQ(Message_Of("1/1/2000"), text);
  Change("8/3/2004", "Cake");
  Expect_Lines({"1/1/2000=" + text, "8/3/2004=Cake"});
  Change("1/1/2000", text + "&&");
  Expect_Lines({"1/1/2000=" + text + "&&", "8/3/2004=Cake"});
}

TEST_F(Event_File_Test, A_change_takes_32767_lines) {
  Lines lines(32'767, "1/1/2000=x");
  lines.back() = "8/3/2004=Tea";
  Put(lines);
  Change("8/3/2004", "Cake");
  lines.back() = "8/3/2004=Cake";
  Expect_Lines(lines);
  // The line that is added isn't counted; it is the next reading that finds one too many.
  Editor.Text = "new";
  Change("9/3/2004", "new");
  lines.emplace_back("9/3/2004=new");
  Expect_Lines(lines);
}
