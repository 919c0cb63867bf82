#include "basic/file_channel.h"

#include "basic/record_reader.h"
#include "tests/basic/file_channel_world.h"

using basic::Record_Reader;

namespace {

const std::string other = R"(C:\Meridex\Default\settings.ini)";

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

TEST_F(File_Channel_Test, Goes_back_and_writes_anew_from_there) {
  Channel.Open_For_Writing(path);
  for (const char* const line : {"a", "b", "c"}) Channel.Write_Record(line);
  Channel.Go_Back_To(Record("a").size());
  Channel.Write_Record("d");
  Channel.Close();
  EXPECT_EQ(Content(), Record("a") + Record("d"));
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
