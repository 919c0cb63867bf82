#include "memory/memory_profiles.h"

#include <gtest/gtest.h>

#include "memory/memory_files.h"

namespace {

const std::string path = "C:\\Meridex\\some.ini";

class Memory_Profiles_Test : public ::testing::Test {
 protected:
  std::string Text(const char* section, const char* entry, unsigned room = 255) {
    return Profiles.Get_Text(section, entry, "none", room, path);
  }

  memory::Virtual_Time Time;
  memory::Memory_Files Files{Time};
  memory::Memory_Profiles Profiles{Files};
};

}  // namespace

TEST_F(Memory_Profiles_Test, Reads_texts_by_section_and_entry) {
  Files.Put(path, "stray=0\r\n[One]\r\na = 1 \r\n\r\n ; a=9\r\n  b=x=y\r\n[ Two ] rest\r\na=2\n");
  EXPECT_EQ(Text("One", "a"), "1");
  EXPECT_EQ(Text("one", "B"), "x=y");
  EXPECT_EQ(Text("Two", "a"), "2");
  EXPECT_EQ(Text("Two", "b"), "none");
  EXPECT_EQ(Text("Three", "a"), "none");
}

TEST_F(Memory_Profiles_Test, The_first_of_two_sections_and_the_first_of_two_entries_count) {
  Files.Put(path, "[One]\r\na=1\r\na=2\r\n[Two]\r\n[One]\r\na=3\r\nb=4\r\n");
  EXPECT_EQ(Text("One", "a"), "1");
  EXPECT_EQ(Text("One", "b"), "none");
}

TEST_F(Memory_Profiles_Test, A_line_without_an_equals_sign_is_no_entry) {
  Files.Put(path, "[One]\r\na\r\n");
  EXPECT_EQ(Text("One", "a"), "none");
}

TEST_F(Memory_Profiles_Test, Cuts_a_text_to_its_room) {
  Files.Put(path, "[One]\r\na=12345\r\n");
  EXPECT_EQ(Text("One", "a", 4), "123");
  EXPECT_EQ(Text("One", "a", 1), "");
  EXPECT_EQ(Text("One", "a", 0), "");
  EXPECT_EQ(Text("One", "z", 3), "no");
}

TEST_F(Memory_Profiles_Test, A_file_that_is_not_there_holds_nothing) {
  EXPECT_EQ(Text("One", "a"), "none");
  EXPECT_EQ(Profiles.Get_Number("One", "a", 7, path), 7);
}

TEST_F(Memory_Profiles_Test, Reads_the_number_at_a_text_s_start) {
  Files.Put(path, "[One]\r\na=12\r\nb=-5x\r\nc=+3\r\nd=word\r\ne=\r\nf=12345678901\r\n");
  const auto number = [&](const char* entry) { return Profiles.Get_Number("One", entry, 7, path); };
  EXPECT_EQ(number("a"), 12);
  EXPECT_EQ(number("b"), -5);
  EXPECT_EQ(number("c"), 3);
  EXPECT_EQ(number("d"), 0);
  EXPECT_EQ(number("e"), 7);
  EXPECT_EQ(number("f"), 123456789);
  EXPECT_EQ(number("z"), 7);
}

TEST_F(Memory_Profiles_Test, Writing_makes_the_file_the_section_and_the_entry) {
  EXPECT_TRUE(Profiles.Write_Text("One", "a", "1", path));
  EXPECT_EQ(Files.Bytes(path), "[One]\r\na=1\r\n");
}

TEST_F(Memory_Profiles_Test, Writing_keeps_all_other_lines) {
  Files.Put(path, "; head\r\n[One]\r\na=1\r\n\r\n[Two]\r\nb=2\r\n");
  Profiles.Write_Text("ONE", "A", "9", path);
  EXPECT_EQ(Files.Bytes(path), "; head\r\n[One]\r\nA=9\r\n\r\n[Two]\r\nb=2\r\n");
  Profiles.Write_Text("One", "c", "3", path);
  EXPECT_EQ(Files.Bytes(path), "; head\r\n[One]\r\nA=9\r\nc=3\r\n\r\n[Two]\r\nb=2\r\n");
  Profiles.Write_Text("Three", "d", "", path);
  EXPECT_EQ(Files.Bytes(path), "; head\r\n[One]\r\nA=9\r\nc=3\r\n\r\n[Two]\r\nb=2\r\n[Three]\r\nd=\r\n");
}

TEST_F(Memory_Profiles_Test, Writing_into_an_empty_section_at_the_end) {
  Files.Put(path, "[One]");
  Profiles.Write_Text("One", "a", "1", path);
  EXPECT_EQ(Files.Bytes(path), "[One]\r\na=1\r\n");
}

TEST_F(Memory_Profiles_Test, Says_when_it_could_not_write) {
  Files.Fill_Up(path);
  EXPECT_FALSE(Profiles.Write_Text("One", "a", "1", path));
  Files.Block(path);
  EXPECT_FALSE(Profiles.Write_Text("One", "a", "1", path));
}
