#include "basic/file_channel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basic/record_reader.h"
#include "tests/basic/error_of.h"
#include "tests/basic/fake_disk.h"

using basic::File_Channel;
using basic::Record_Reader;

namespace {

const std::string path = R"(C:\Meridex\calendar.dat)";
const std::string other = R"(C:\Meridex\Default\settings.ini)";

class File_Channel_Test : public ::testing::Test {
 protected:
  void Write(const std::vector<std::string>& lines) {
    Channel.Open_For_Writing(path);
    for (const std::string& line : lines) Channel.Write_Record(line);
    Channel.Close();
  }

  int Error_Of_Opening() {
    return Error_Of([&] {
      Channel.Open_For_Reading(path);
      Channel.Close();
    });
  }

  std::string& Content() { return Disk.Contents[path]; }

  Fake_Disk Disk;
  File_Channel Channel{Disk};
};

std::string Record(const std::string& line) { return "\"" + line + "\"\r\n"; }

}  // namespace

TEST_F(File_Channel_Test, Reads_the_file_whole) {
  Content() = "\"a\"\r\n\"b\"";
  EXPECT_EQ(Channel.Open_For_Reading(path), "\"a\"\r\n\"b\"");
  Channel.Close();
  Content() = std::string("\0\x1A\xFF", 3);
  EXPECT_EQ(Channel.Open_For_Reading(path), Content()) << "bytes are bytes, no mark ends the file";
}

TEST_F(File_Channel_Test, Reads_an_empty_file) {
  Content() = "";
  EXPECT_EQ(Channel.Open_For_Reading(path), "");
}

TEST_F(File_Channel_Test, Keeps_the_bytes_until_the_next_opening) {
  Content() = "\"kept\"\r\n";
  const std::string_view bytes = Channel.Open_For_Reading(path);
  Content() = "another";
  Channel.Close();
  EXPECT_EQ(bytes, "\"kept\"\r\n");
}

TEST_F(File_Channel_Test, Reads_a_shorter_file_behind_a_longer_one_without_its_rest) {
  Content() = std::string(1000, 'x');
  Channel.Open_For_Reading(path);
  Channel.Close();
  Content() = "short";
  EXPECT_EQ(Channel.Open_For_Reading(path), "short");
}

TEST_F(File_Channel_Test, Uses_one_buffer_for_all_readings) {
  Content() = std::string(100'000, 'x');
  const char* const first = Channel.Open_For_Reading(path).data();
  Channel.Close();
  Content() = std::string(99'000, 'y');
  EXPECT_EQ(Channel.Open_For_Reading(path).data(), first);
}

TEST_F(File_Channel_Test, Writes_records_in_quotes_with_CR_LF) {
  Write({"5/3/2004=Dentist at nine", "", "1/1/2005=Line one\r\nLine two"});
  EXPECT_EQ(Content(), "\"5/3/2004=Dentist at nine\"\r\n\"\"\r\n\"1/1/2005=Line one\r\nLine two\"\r\n");
  EXPECT_EQ(Disk.Open_For_Writing, 0) << "closed";
}

TEST_F(File_Channel_Test, Empties_the_file_on_opening_for_writing) {
  Content() = "old";
  Channel.Open_For_Writing(path);
  EXPECT_EQ(Content(), "");
  Channel.Close();
  EXPECT_EQ(Content(), "");
}

TEST_F(File_Channel_Test, Creates_a_file_that_is_not_there) {
  Write({"a"});
  EXPECT_EQ(Disk.Contents.count(path), 1U);
}

TEST_F(File_Channel_Test, Writes_nothing_of_what_was_read_before) {
  Content() = "read";
  Channel.Open_For_Reading(path);
  Channel.Close();
  Write({"written"});
  EXPECT_EQ(Content(), Record("written"));
}

TEST_F(File_Channel_Test, Writes_nothing_of_an_earlier_file_into_a_later_one) {
  Write({"first"});
  Channel.Open_For_Writing(other);
  Channel.Write_Record("second");
  Channel.Close();
  EXPECT_EQ(Content(), Record("first"));
  EXPECT_EQ(Disk.Contents[other], Record("second"));
}

TEST_F(File_Channel_Test, Writes_many_records_in_few_large_pieces) {
  const std::string line(100, 'x');
  const std::vector<std::string> lines(32767, line);
  Write(lines);
  EXPECT_EQ(Content().size(), 32767 * (line.size() + 4));
  EXPECT_LT(Disk.Writes, 60);
  EXPECT_GT(Disk.Writes, 1) << "and not all in memory";
}

TEST_F(File_Channel_Test, Writes_a_record_of_ten_megabytes) {
  std::string line;
  line.resize(10'000'000, 'x');
  Write({"a", line, "b"});
  EXPECT_EQ(Content(), Record("a") + Record(line) + Record("b"));
}

TEST_F(File_Channel_Test, Reads_back_what_it_wrote) {
  std::string all;
  for (int code = 0; code < 256; ++code)
    if (code != '"') all += static_cast<char>(code);
  const std::vector<std::string> lines = {all, "", "  blanks  ", "a,b", "\r\n", ",", std::string(70'000, 'x')};
  Write(lines);
  Record_Reader reader(Channel.Open_For_Reading(path));
  std::vector<std::string> read;
  for (std::string_view record; reader.Next(record);) read.emplace_back(record);
  EXPECT_EQ(read, lines);
}

TEST_F(File_Channel_Test, Refuses_a_second_opening_while_a_file_is_being_read) {
  Content() = "\"a\"\r\n\"b\"\r\n";
  Disk.Contents[other] = "other";
  const std::string_view bytes = Channel.Open_For_Reading(path);
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Reading(other); }), 55);
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Writing(path); }), 55);
  EXPECT_EQ(bytes, "\"a\"\r\n\"b\"\r\n") << "the reading goes on with its bytes";
  EXPECT_EQ(Content(), "\"a\"\r\n\"b\"\r\n") << "and the file wasn't emptied";
  Channel.Close();
  EXPECT_EQ(Channel.Open_For_Reading(other), "other");
}

TEST_F(File_Channel_Test, Refuses_a_second_opening_while_a_file_is_being_written) {
  Channel.Open_For_Writing(path);
  Channel.Write_Record("a");
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Writing(other); }), 55);
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Reading(path); }), 55);
  EXPECT_EQ(Disk.Contents.count(other), 0U);
  Channel.Write_Record("b");
  Channel.Close();
  EXPECT_EQ(Content(), Record("a") + Record("b"));
}

TEST_F(File_Channel_Test, Refuses_every_opening_once_a_procedure_left_the_number_taken) {
  Content() = "no date\r\n";
  Disk.Contents[other] = "other";
  Channel.Open_For_Reading(path);  // and the procedure fails before it closes
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Error_Of([&] { Channel.Open_For_Reading(path); }), 55);
    EXPECT_EQ(Error_Of([&] { Channel.Open_For_Reading(other); }), 55);
    EXPECT_EQ(Error_Of([&] { Channel.Open_For_Writing(other); }), 55);
  }
}

TEST_F(File_Channel_Test, Leaves_the_number_free_when_opening_for_reading_fails) {
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Reading(path); }), 53);
  Content() = "a";
  Disk.Blocked = {path};
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Reading(path); }), 70);
  Disk.Blocked.clear();
  EXPECT_EQ(Channel.Open_For_Reading(path), "a");
}

TEST_F(File_Channel_Test, Leaves_the_number_free_when_opening_for_writing_fails) {
  Content() = "a";
  Disk.Blocked = {path};
  EXPECT_EQ(Error_Of([&] { Channel.Open_For_Writing(path); }), 70);
  EXPECT_EQ(Content(), "a");
  Disk.Blocked.clear();
  Write({"b"});
  EXPECT_EQ(Content(), Record("b"));
}

TEST_F(File_Channel_Test, Throws_disk_full_at_the_close_and_keeps_the_records_that_found_room) {
  Disk.Room = Record("first").size() + Record("second").size() + 3;
  Channel.Open_For_Writing(path);
  for (const char* const line : {"first", "second", "third", "fourth"}) Channel.Write_Record(line);
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 61);
  EXPECT_EQ(Content(), Record("first") + Record("second"));
  EXPECT_EQ(Error_Of_Opening(), 55) << "the number stays taken";
}

TEST_F(File_Channel_Test, Cuts_a_full_disk_s_file_behind_a_whole_record_wherever_the_room_ends) {
  const std::vector<std::string> lines = {"a", "", "1/1/2005=Line one\r\nLine two", "\r\nbegins with a line end", "b"};
  std::string whole;
  std::vector<std::size_t> ends = {0};
  for (const std::string& line : lines) {
    whole += Record(line);
    ends.push_back(whole.size());
  }
  for (std::size_t room = 0; room < whole.size(); ++room) {
    Fake_Disk disk;
    disk.Room = room;
    File_Channel channel(disk);
    channel.Open_For_Writing(path);
    for (const std::string& line : lines) channel.Write_Record(line);
    EXPECT_EQ(Error_Of([&] { channel.Close(); }), 61);
    std::size_t end = 0;
    for (const std::size_t candidate : ends)
      if (candidate <= room) end = candidate;
    ASSERT_EQ(disk.Contents[path], whole.substr(0, end)) << room;
  }
}

TEST_F(File_Channel_Test, Cuts_a_later_file_by_its_own_length) {
  Write({"an earlier file of some length"});
  Disk.Room = Record("first").size() + 3;
  Channel.Open_For_Writing(other);
  Channel.Write_Record("first");
  Channel.Write_Record("second");
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 61);
  EXPECT_EQ(Disk.Contents[other], Record("first"));
}

TEST_F(File_Channel_Test, Leaves_an_empty_file_if_not_even_the_first_record_finds_room) {
  Content() = "old";
  Disk.Room = 4;
  Channel.Open_For_Writing(path);
  Channel.Write_Record("first");
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 61);
  EXPECT_EQ(Content(), "");
}

TEST_F(File_Channel_Test, Takes_a_disk_with_just_enough_room) {
  Disk.Room = Record("a").size();
  Write({"a"});
  EXPECT_EQ(Content(), Record("a"));
  EXPECT_EQ(Error_Of_Opening(), 0);
}

TEST_F(File_Channel_Test, Throws_disk_full_while_writing_and_cuts_behind_all_earlier_pieces) {
  const std::string line(996, 'x');
  const std::string record = Record(line);
  ASSERT_EQ(record.size(), 1000U);
  Disk.Room = 150'500;  // two whole pieces go before, the third is cut in the middle of a record
  Channel.Open_For_Writing(path);
  int written = 0;
  EXPECT_EQ(Error_Of([&] {
              for (; written < 1000; ++written) Channel.Write_Record(line);
            }),
            61);
  EXPECT_GT(written, 150);
  EXPECT_LT(written, 300) << "the failure comes long before the close";
  EXPECT_EQ(Content().size(), 150'000U);
  EXPECT_EQ(Content().substr(149'000), record);
  EXPECT_EQ(Error_Of_Opening(), 55) << "the number stays taken";
}

TEST_F(File_Channel_Test, Keeps_an_earlier_piece_whole_when_a_later_one_finds_no_room_at_all) {
  const std::string line(65'532, 'x');  // one record is a piece of its own
  Disk.Room = Record(line).size();
  Channel.Open_For_Writing(path);
  Channel.Write_Record(line);
  Channel.Write_Record("next");
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 61);
  EXPECT_EQ(Content(), Record(line));
}

TEST_F(File_Channel_Test, Bears_closing_what_was_never_opened) {
  Channel.Close();
  EXPECT_EQ(Disk.Open_For_Writing, 0);
  Content() = "a";
  EXPECT_EQ(Error_Of_Opening(), 0);
}

TEST_F(File_Channel_Test, Writes_lines_as_they_stand) {
  Channel.Open_For_Writing(path);
  Channel.Write_Line("a \"b\"");
  Channel.Write_Line("");
  Channel.Write_Record("c");
  Channel.Close();
  EXPECT_EQ(Content(), "a \"b\"\r\n\r\n\"c\"\r\n");
}

TEST_F(File_Channel_Test, Writes_out_and_goes_on) {
  Channel.Open_For_Writing(path);
  Channel.Write_Record("a");
  Channel.Write_Out();
  EXPECT_EQ(Content(), Record("a"));
  EXPECT_EQ(Disk.Open_For_Writing, 1);
  Channel.Write_Record("b");
  Channel.Close();
  EXPECT_EQ(Content(), Record("a") + Record("b"));
}

TEST_F(File_Channel_Test, Writes_records_that_stand_ready) {
  Channel.Open_For_Writing(path);
  Channel.Write_Record("a");
  const std::vector<std::size_t> lengths{Record("b").size(), Record("cd").size()};
  Channel.Write_Records(Record("b") + Record("cd"), lengths);
  Channel.Write_Record("e");
  Channel.Close();
  EXPECT_EQ(Content(), Record("a") + Record("b") + Record("cd") + Record("e"));
}

TEST_F(File_Channel_Test, Cuts_behind_a_whole_one_of_the_records_that_stand_ready) {
  const std::vector<std::string> records{Record("a"), Record("b"), Record(std::string(100'000, 'c')), Record("d")};
  const std::vector<std::size_t> lengths{records[1].size(), records[2].size(), records[3].size()};
  for (std::size_t whole = 0; whole < records.size(); ++whole) {
    std::string expected;
    for (std::size_t i = 0; i < whole; ++i) expected += records[i];
    Disk.Room = expected.size() + 3;
    basic::File_Channel channel(Disk);
    channel.Open_For_Writing(path);
    channel.Write_Record("a");
    EXPECT_EQ(Error_Of([&] {
                channel.Write_Records(records[1] + records[2] + records[3], lengths);
                channel.Write_Out();
              }),
              61);
    EXPECT_EQ(Content(), expected) << whole;
  }
}

TEST_F(File_Channel_Test, Goes_back_and_writes_anew_from_there) {
  Channel.Open_For_Writing(path);
  for (const char* const line : {"a", "b", "c"}) Channel.Write_Record(line);
  Channel.Go_Back_To(Record("a").size());
  Channel.Write_Record("d");
  Channel.Close();
  EXPECT_EQ(Content(), Record("a") + Record("d"));
}

TEST_F(File_Channel_Test, A_full_disk_cuts_behind_a_whole_record_also_after_going_back) {
  Channel.Open_For_Writing(path);
  for (const char* const line : {"a", "b", "c"}) Channel.Write_Record(line);
  Channel.Go_Back_To(Record("a").size());
  Disk.Room = Record("d").size() + 2;
  Channel.Write_Record("d");
  Channel.Write_Record("e");
  EXPECT_EQ(Error_Of([&] { Channel.Write_Out(); }), 61);
  EXPECT_EQ(Content(), Record("a") + Record("d"));
}

TEST_F(File_Channel_Test, What_found_no_room_is_not_written_later) {
  Channel.Open_For_Writing(path);
  Channel.Write_Record("a");
  Disk.Room = 0;
  EXPECT_EQ(Error_Of([&] { Channel.Write_Out(); }), 61);
  Disk.Room = 1000;
  Channel.Give_Up();
  EXPECT_EQ(Content(), "");
}

TEST_F(File_Channel_Test, Giving_up_frees_the_number_whatever_took_it) {
  Channel.Give_Up();
  Write({"a"});
  Channel.Open_For_Reading(path);
  Channel.Give_Up();
  EXPECT_EQ(Error_Of_Opening(), 0);
  Channel.Open_For_Writing(path);
  Channel.Write_Record("b");
  Channel.Give_Up();
  EXPECT_EQ(Error_Of_Opening(), 0);
  EXPECT_EQ(Content(), Record("b"));
  EXPECT_EQ(Disk.Open_For_Writing, 0);
  Channel.Open_For_Writing(path);
  Channel.Write_Record("c");
  Disk.Room = 0;
  Channel.Give_Up();
  EXPECT_EQ(Error_Of_Opening(), 0);
}

TEST_F(File_Channel_Test, Knows_which_file_has_the_number) {
  EXPECT_FALSE(Channel.Holds(path));
  Channel.Open_For_Writing(path);
  EXPECT_TRUE(Channel.Holds(R"(c:\MERIDEX\Calendar.dat)"));
  EXPECT_FALSE(Channel.Holds(other));
  Channel.Close();
  EXPECT_FALSE(Channel.Holds(path));
}

TEST_F(File_Channel_Test, A_file_written_beside_another_is_finished_by_closing_alone) {
  using Paths = std::vector<std::string>;
  Channel.Open_For_Writing(path, basic::Saving::Beside);
  EXPECT_EQ(Disk.Created_Beside, Paths{path});
  Channel.Write_Record("a");
  Channel.Write_Out();
  Channel.Give_Up();
  EXPECT_EQ(Disk.Finished, Paths{});
  Channel.Open_For_Writing(path, basic::Saving::Beside);
  Channel.Write_Record("b");
  Channel.Close();
  EXPECT_EQ(Disk.Finished, Paths{path});
  Channel.Open_For_Writing(other);
  EXPECT_EQ(Disk.Created_Beside, (Paths{path, path})) << "in its place, where nothing else is asked for";
}

TEST_F(File_Channel_Test, A_file_that_found_no_room_is_not_finished) {
  Disk.Room = 3;
  Channel.Open_For_Writing(path, basic::Saving::Beside);
  Channel.Write_Record("tea");
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 61);
  EXPECT_TRUE(Disk.Finished.empty());
  EXPECT_EQ(Error_Of_Opening(), 55);
}
