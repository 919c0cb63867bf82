#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/events/event_file_world.h"

namespace {

using Lines = std::vector<std::string>;

class Event_File_Failures : public ::testing::Test, public Event_File_World {};

}  // namespace

TEST_F(Event_File_Failures, A_failing_line_ends_the_reading_behind_the_lines_before_it) {
  Put({"a", "b", "bad", "c"});
  Fails_At = 3;
  Load_Dates();
  EXPECT_EQ(Entered, (Lines{"a", "b", "bad"}));
  EXPECT_EQ(Messages(), Lines{loading_failed});
  EXPECT_TRUE(Is_Taken());
}

TEST_F(Event_File_Failures, Every_error_of_a_line_ends_in_the_same_message) {
  using basic::Error_Number;
  for (const auto error : {Error_Number::Invalid_Procedure_Call, Error_Number::Overflow,
                           Error_Number::Subscript_Out_Of_Range, Error_Number::Type_Mismatch}) {
    Event_File_World world;
    world.Put({"a"});
    world.File.Load_Dates([error](std::string_view) { throw basic::Run_Error(error); });
    EXPECT_EQ(world.Messages(), Lines{loading_failed});
  }
}

TEST_F(Event_File_Failures, Get_Message_gives_what_it_had_found) {
  Put({"8/3/9999=Tea", "bad", "8/3/2004=Cake"});
  Lines told_before;
  const auto tick = [&] {
    told_before = Messages();
    told_before.emplace_back("every year");
  };
  EXPECT_EQ(File.Get_Message(tick), "Tea");
  EXPECT_EQ(told_before, Lines{"every year"}) << "the box is ticked before the failure is told";
  EXPECT_EQ(Messages(), Lines{loading_failed});
  EXPECT_TRUE(Is_Taken());
}

TEST_F(Event_File_Failures, Get_Message_fails_at_a_line_without_an_equals_sign_behind_its_hit_too) {
  Put({"8/3/2004=Tea", ""});
  EXPECT_EQ(File.Get_Message(), "Tea");
  EXPECT_EQ(Messages(), Lines{loading_failed});
}

TEST_F(Event_File_Failures, An_opening_that_fails_takes_nothing) {
  Put({"8/3/2004=Tea"});
  Files.Disk.Blocked.insert(path);
  Editor.Text = "Cake";
  Load_Dates();
  EXPECT_EQ(Messages(), Lines{loading_failed});
  EXPECT_EQ(File.Get_Message(), "");
  EXPECT_EQ(Messages(), Lines{loading_failed});
  Change("8/3/2004", "Cake");
  EXPECT_EQ(Messages(), (Lines{loading_failed, saving_failed}));
  Files.Disk.Blocked.clear();
  EXPECT_FALSE(Is_Taken());
  EXPECT_EQ(Content(), Record("8/3/2004=Tea"));
  EXPECT_EQ(File.Get_Message(), "Tea");
  EXPECT_EQ(Messages(), Lines());
}

TEST_F(Event_File_Failures, Load_File_empties_the_list_before_it_opens) {
  Put({"8/3/2004=Tea", "9/3/2004=Cake"});
  File.Load_File();
  Files.Disk.Blocked.insert(path);
  File.Load_File();
  EXPECT_EQ(Messages(), Lines{loading_failed});
  Files.Disk.Blocked.clear();
  Files.Disk.Contents.clear();
  Editor.Text = "Soup";
  Change("8/3/2004", "Soup");
  EXPECT_EQ(Content(), Record("8/3/2004=Soup")) << "the line went to the end of an empty list";
}

TEST_F(Event_File_Failures, Once_taken_the_number_fails_every_procedure_and_the_file_stays_whole) {
  Put({"bad"});
  File.Get_Message();
  Messages();
  Put({"8/3/2004=Tea"});
  Editor.Text = "Cake";
  Load_Dates();
  EXPECT_EQ(Entered, Lines());
  EXPECT_EQ(Messages(), Lines{loading_failed});
  EXPECT_EQ(File.Get_Message(), "");
  EXPECT_EQ(Messages(), Lines{loading_failed});
  Change("8/3/2004", "Cake");
  EXPECT_EQ(Messages(), (Lines{loading_failed, saving_failed}));
  EXPECT_EQ(Content(), Record("8/3/2004=Tea"));
  // Where there is no file nobody tries to open it.
  Files.Disk.Contents.clear();
  Load_Dates();
  File.Load_File();
  File.Get_Message();
  EXPECT_EQ(Messages(), Lines());
}

TEST_F(Event_File_Failures, A_full_disk_cuts_the_file_behind_the_last_whole_record) {
  Put({"8/3/2004=Tea", "9/3/2004=Cake", "10/3/2004=Soup"});
  Files.Disk.Room = Record("8/3/2004=Milk").size() + Record("9/3/2004=Cake").size() + 5;
  Change("8/3/2004", "Milk");
  EXPECT_EQ(Messages(), Lines{saving_failed});
  EXPECT_EQ(Content(), Record("8/3/2004=Milk") + Record("9/3/2004=Cake"));
  EXPECT_TRUE(Is_Taken());
}

TEST_F(Event_File_Failures, A_full_disk_at_a_new_line_keeps_the_old_ones) {
  Put({"8/3/2004=Tea"});
  Files.Disk.Room = Record("8/3/2004=Tea").size();
  Editor.Text = "Cake";
  Change("9/3/2004", "Cake");
  EXPECT_EQ(Messages(), Lines{saving_failed});
  EXPECT_EQ(Content(), Record("8/3/2004=Tea"));
  EXPECT_TRUE(Is_Taken());
}

TEST_F(Event_File_Failures, A_full_disk_does_not_matter_where_nothing_is_written) {
  Put({"8/3/2004=Tea"});
  Files.Disk.Room = 0;
  Change("8/3/2004", "");
  EXPECT_EQ(Messages(), Lines());
  EXPECT_EQ(Content(), "");
  EXPECT_FALSE(Is_Taken());
}

TEST_F(Event_File_Failures, One_line_too_many_ends_the_reading_for_a_change_with_the_lines_so_far) {
  Lines lines(40'000, "1/1/2000=x");
  lines[32'766] = "8/3/2004=last that is counted";
  lines[32'767] = "9/3/2004=first that isn't";
  Put(lines);
  const std::string before = Content();
  File.Load_File();
  EXPECT_EQ(Messages(), Lines{loading_failed});
  EXPECT_TRUE(Is_Taken());
  // The last line that was read is found, and its writing fails; the next was never read, and an editor without a text
  // writes none.
  File.Check_For_Pre("", Editor);
  EXPECT_EQ(Messages(), Lines{saving_failed});
  Calendar.Selected_Date = "9/3/2004";
  File.Check_For_Pre("", Editor);
  EXPECT_EQ(Messages(), Lines());
  EXPECT_EQ(Content(), before);
}

TEST_F(Event_File_Failures, A_reading_within_a_reading_fails_and_the_first_goes_on) {
  Put({"a=", "8/3/2004=b", "c="});
  Editor.Text = "new";
  File.Load_Dates([this](std::string_view line) {
    Entered.emplace_back(line);
    if (line != "8/3/2004=b") return;
    Load_Dates();
    EXPECT_EQ(File.Get_Message(), "");
    Change("8/3/2004", "new");
  });
  EXPECT_EQ(Entered, (Lines{"a=", "8/3/2004=b", "c="}));
  EXPECT_EQ(Messages(), (Lines{loading_failed, loading_failed, loading_failed, saving_failed}));
  EXPECT_FALSE(Is_Taken()) << "the first reading closes the file at its end";
  EXPECT_EQ(Content(), Record("a=") + Record("8/3/2004=b") + Record("c="));
}
