// What a full disk leaves of a file that is being written.
#include "tests/basic/file_channel_world.h"

using basic::File_Channel;

namespace {

const std::string other = R"(C:\Meridex\Default\settings.ini)";

}  // namespace

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

TEST_F(File_Channel_Test, A_file_that_found_no_room_is_not_finished) {
  Disk.Room = 3;
  Channel.Open_For_Writing(path, basic::Saving::Beside);
  Channel.Write_Record("tea");
  EXPECT_EQ(Error_Of([&] { Channel.Close(); }), 61);
  EXPECT_TRUE(Disk.Finished.empty());
  EXPECT_EQ(Error_Of_Opening(), 55);
}
