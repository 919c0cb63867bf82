// The merging of imported events: which line gets a text, and that the file is whole after each of them.
#include "exchange/line_merge.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/basic/error_of.h"
#include "tests/basic/fake_disk.h"

using exchange::Line_Merge;
using Texts = std::vector<std::string>;

namespace {

const std::string path = "C:\\Meridex\\calendar.dat";

class Line_Merge_Test : public ::testing::Test {
 protected:
  void Set(const Texts& lines) {
    Lines.Clear();
    for (const std::string& line : lines) Lines.Append(line);
  }

  Texts Present() {
    Texts lines;
    for (int i = 0; i < Lines.Count().Value(); ++i) lines.push_back(Lines.Line(i));
    return lines;
  }

  /// The file as one writing of all lines makes it.
  std::string Whole() {
    std::string bytes;
    for (const std::string& line : Present()) bytes += '"' + line + "\"\r\n";
    return bytes;
  }

  std::string& Content() { return Disk.Contents[path]; }

  Fake_Disk Disk;
  basic::File_Channel Channel{Disk};
  events::Temp_List Lines;
};

}  // namespace

TEST_F(Line_Merge_Test, The_first_line_of_the_day_gets_the_text) {
  Set({"3/4/2004=a", "3/4/9999=b", "4/4/9999=c", "4/4/2004=d"});
  Line_Merge merge(Lines, Channel, path);
  merge.Merge("3/4/2004", "x");
  merge.Merge("4/4/2004", "y");
  merge.Merge("3/4/2005", "z");
  merge.Merge("5/4/2004", "w");
  merge.Merge("5/4/2004", "v");
  merge.Close();
  EXPECT_EQ(Present(), (Texts{"3/4/2004=a + x", "3/4/9999=b + z", "4/4/9999=c + y", "4/4/2004=d", "5/4/2004=w + v"}));
  EXPECT_EQ(Content(), Whole());
  EXPECT_EQ(Disk.Open_For_Writing, 0);
}

TEST_F(Line_Merge_Test, Without_an_event_nothing_is_opened) {
  Disk.Contents[path] = "before";
  Set({"3/4/2004=a"});
  Line_Merge merge(Lines, Channel, path);
  merge.Close();
  EXPECT_EQ(Content(), "before");
}

TEST_F(Line_Merge_Test, A_text_with_an_equals_sign_is_no_date) {
  Set({"3/4/2004=4/4/2004=a"});
  Line_Merge merge(Lines, Channel, path);
  merge.Merge("4/4/2004", "b=c");
  merge.Merge("4/4/2004", "d");
  EXPECT_EQ(Present(), (Texts{"3/4/2004=4/4/2004=a", "4/4/2004=b=c + d"}));
}

TEST_F(Line_Merge_Test, A_year_of_three_digits_finds_the_event_of_every_year) {
  Set({"1/19999=a", "1/1/9999=b"});
  Line_Merge merge(Lines, Channel, path);
  merge.Merge("1/1/100", "c");
  EXPECT_EQ(Present(), (Texts{"1/19999=a", "1/1/9999=b + c"}));
}

TEST_F(Line_Merge_Test, A_line_without_a_date_ends_the_search_that_meets_it) {
  Set({"3/4/2004=a", "broken", "4/4/2004=b"});
  Line_Merge merge(Lines, Channel, path);
  merge.Merge("3/4/2004", "x");
  EXPECT_EQ(Error_Of([&] { merge.Merge("4/4/2004", "y"); }), 5);
  EXPECT_EQ(Error_Of([&] { merge.Merge("5/4/2004", "y"); }), 5);
  EXPECT_EQ(Content(), "\"3/4/2004=a + x\"\r\n\"broken\"\r\n\"4/4/2004=b\"\r\n");
}

TEST_F(Line_Merge_Test, The_file_is_whole_after_each_event) {
  std::mt19937 random(11);
  for (int round = 0; round < 50; ++round) {
    Set({"1/1/9999=new year", "2/1/2004=second"});
    Line_Merge merge(Lines, Channel, path);
    for (int i = 0; i < 40; ++i) {
      const std::string key = std::to_string(random() % 28 + 1) + "/" + std::to_string(random() % 2 + 1) + "/2004";
      merge.Merge(key, std::string(random() % 30, 'x'));
      ASSERT_EQ(Content(), Whole());
    }
    merge.Close();
  }
}

TEST_F(Line_Merge_Test, A_full_disk_keeps_whole_records_and_the_file_number) {
  Set({"1/1/2004=first", "2/1/2004=second"});
  const std::string before = Whole();
  for (std::size_t room = 0; room < before.size() + 30; ++room) {
    Set({"1/1/2004=first", "2/1/2004=second"});
    Disk.Room = room;
    basic::File_Channel channel(Disk);
    Line_Merge merge(Lines, channel, path);
    int error = 0;
    for (const char* const key : {"3/1/2004", "4/1/2004", "5/1/2004"})
      if (error == 0) error = Error_Of([&] { merge.Merge(key, "more"); });
    ASSERT_EQ(error, 61);
    ASSERT_EQ(Content(), Whole().substr(0, Content().size()));
    ASSERT_TRUE(Content().empty() || Content().ends_with("\"\r\n"));
    ASSERT_TRUE(channel.Holds(path));
    channel.Give_Up();
  }
}

TEST_F(Line_Merge_Test, The_last_line_is_the_32767th) {
  for (int i = 0; i < 32767; ++i) Lines.Append("1/1/2004=x");
  Line_Merge merge(Lines, Channel, path);
  merge.Merge("1/1/2004", "y");
  EXPECT_EQ(Error_Of([&] { merge.Merge("2/1/2004", "y"); }), 6);
}
