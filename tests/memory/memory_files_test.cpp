#include "memory/memory_files.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"

using memory::Memory_Files;
using memory::Virtual_Time;

namespace {

class Memory_Files_Test : public ::testing::Test {
 protected:
  static std::string Path(const std::string& name) { return Memory_Files::Full_Path(name); }
  int Error_Of_Create(const std::string& name) {
    return Error_Of([&] { Files.Create(Path(name)); });
  }

  Virtual_Time Time;
  Memory_Files Files{Time};
};

}  // namespace

TEST_F(Memory_Files_Test, Names_in_the_program_folder_become_full_paths) {
  EXPECT_EQ(Path("Seasons/1.jpg"), "C:\\Meridex\\Seasons\\1.jpg");
  EXPECT_EQ(Path("D:/a//b\\"), "D:\\a\\b");
  EXPECT_EQ(Path(""), "C:\\Meridex");
}

TEST_F(Memory_Files_Test, Finds_names_without_regard_to_case_and_slashes) {
  Files.Put(Path("Seasons\\M\xC4RZ.txt"), "x");
  EXPECT_EQ(Files.Bytes("c:/meridex/SEASONS/m\xE4rz.TXT"), "x");
}

TEST_F(Memory_Files_Test, A_path_with_dots_leads_to_the_same_file) {
  Files.Put(Path("a/f"), "x");
  EXPECT_EQ(Files.Bytes("C:\\Meridex\\.\\a\\f"), "x");
  EXPECT_EQ(Files.Bytes("C:\\Meridex\\nowhere\\..\\a\\f"), "x") << "whether the folder is there or not";
  EXPECT_EQ(Files.Bytes("C:\\..\\..\\Meridex\\a\\b\\..\\..\\A\\f"), "x") << "above a drive is nothing";
  EXPECT_EQ(Error_Of([&] { Files.Copy(Path("a/f"), Path("b/../a/f")); }), 70) << "a file can't be copied onto itself";
  Files.Put(Path("a/../g"), "y");
  EXPECT_EQ(Files.File_Names(Path("")), std::vector<std::string>{"g"});
}

TEST_F(Memory_Files_Test, A_file_keeps_the_spelling_of_its_first_writing) {
  Files.Put(Path("Data.bak"), "x");
  Files.Put(Path("DATA.BAK"), "y");
  EXPECT_EQ(Files.File_Names(Path("")), std::vector<std::string>{"Data.bak"});
}

TEST_F(Memory_Files_Test, Putting_a_file_makes_the_folders_above_it) {
  Files.Put(Path("a/b/c"), "x");
  EXPECT_TRUE(Files.Folder_Exists(Path("a/b")));
  EXPECT_FALSE(Files.File_Exists(Path("a/b")));
}

TEST_F(Memory_Files_Test, A_blocked_file_exists_as_a_folder_and_fails_to_open_with_75) {
  Files.Put(Path("f"), "x");
  Files.Block(Path("f"));
  std::string buffer;
  EXPECT_EQ(Error_Of([&] { Files.Read_Whole(Path("f"), buffer); }), 75);
  EXPECT_EQ(Error_Of_Create("f"), 75);
  EXPECT_EQ(Error_Of([&] { Files.Delete(Path("f")); }), 75);
  EXPECT_FALSE(Files.File_Exists(Path("f")));
  EXPECT_TRUE(Files.Folder_Exists(Path("f")));
}

TEST_F(Memory_Files_Test, A_full_file_opens_empties_and_takes_no_bytes) {
  Files.Put(Path("f"), "old");
  Files.Fill_Up(Path("f"));
  EXPECT_EQ(Files.Bytes(Path("f")), "old");
  EXPECT_EQ(Files.Create(Path("f"))->Write("new"), 0U);
  EXPECT_EQ(Files.Bytes(Path("f")), "");
}

TEST_F(Memory_Files_Test, Filling_up_makes_a_file_that_isnt_there) {
  Files.Fill_Up(Path("f"));
  EXPECT_TRUE(Files.File_Exists(Path("f")));
}

TEST_F(Memory_Files_Test, Putting_a_file_takes_its_faults_away) {
  Files.Fill_Up(Path("f"));
  Files.Put(Path("f"), "");
  EXPECT_EQ(Files.Create(Path("f"))->Write("new"), 3U);
  Files.Block(Path("f"));
  Files.Put(Path("f"), "x");
  EXPECT_EQ(Files.Bytes(Path("f")), "x");
}

TEST_F(Memory_Files_Test, A_folder_with_something_in_it_isnt_written_over) {
  Files.Put(Path("a/b"), "x");
  EXPECT_EQ(Error_Of([&] { Files.Put(Path("a"), "y"); }), 75);
}

TEST_F(Memory_Files_Test, Removing_a_folder_takes_all_in_it_and_no_namesake) {
  Files.Put(Path("a/b/c"), "x");
  Files.Put(Path("ab"), "x");
  Files.Remove(Path("A"));
  EXPECT_FALSE(Files.Folder_Exists(Path("a/b/c")));
  EXPECT_TRUE(Files.File_Exists(Path("ab")));
  Files.Remove(Path("a"));
}

TEST_F(Memory_Files_Test, A_file_changes_at_the_virtual_moment_of_its_writing) {
  Time.Set_Now({38051, 0});
  Files.Put(Path("f"), "x");
  const auto output = Files.Create(Path("f"));
  Time.Run_Until(1000);
  output->Write("y");
  Time.Run_Until(2000);
  EXPECT_EQ(Files.Last_Change(Path("f")), (basic::Moment{38051, 1000}));
  EXPECT_EQ(Error_Of([&] { (void)Files.Last_Change(Path("g")); }), 53);
}

TEST_F(Memory_Files_Test, A_writer_outlives_its_file) {
  const auto output = Files.Create(Path("f"));
  Files.Remove(Path("f"));
  EXPECT_EQ(output->Write("x"), 0U);
  output->Cut(0);
  Files.Put(Path("f"), "new");
  EXPECT_EQ(Files.Bytes(Path("f")), "new");
}

TEST_F(Memory_Files_Test, Lists_files_and_folders_of_one_level) {
  Files.Put(Path("a/b"), "x");
  Files.Put(Path("f"), "x");
  const auto listed = Files.List(Path(""));
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_NE(listed[0].Is_Folder, listed[1].Is_Folder);
  EXPECT_EQ(Error_Of([&] { (void)Files.List(Path("f")); }), 76);
}

TEST_F(Memory_Files_Test, A_copy_has_the_bytes_and_the_time_of_its_source) {
  Time.Set_Now({38051, 0});
  Files.Put(Path("f"), "new");
  Files.Put(Path("g"), "old, and longer");
  Time.Run_Until(5000);
  Files.Copy(Path("f"), Path("g"));
  Files.Copy(Path("f"), Path("h"));
  for (const char* const copy : {"g", "h"}) {
    EXPECT_EQ(Files.Bytes(Path(copy)), "new");
    EXPECT_EQ(Files.Last_Change(Path(copy)), (basic::Moment{38051, 0}));
  }
}

TEST_F(Memory_Files_Test, A_copy_that_has_no_room_leaves_nothing) {
  Files.Put(Path("f"), "1234");
  Files.Put(Path("g"), "123");
  Files.Fill_Up(Path("g"));
  EXPECT_EQ(Error_Of([&] { Files.Copy(Path("f"), Path("g")); }), 61);
  EXPECT_FALSE(Files.File_Exists(Path("g")));
}

TEST_F(Memory_Files_Test, A_copy_finds_the_room_that_a_full_file_had) {
  Files.Put(Path("f"), "1234");
  Files.Put(Path("g"), "abcd");
  Files.Fill_Up(Path("g"));
  EXPECT_EQ(Files.Create(Path("g"))->Write("x"), 0U);
  Files.Copy(Path("f"), Path("g"));
  EXPECT_EQ(Files.Bytes(Path("g")), "1234");
}
