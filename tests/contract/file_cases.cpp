// What the program relies on of files.
#include "tests/basic/error_of.h"
#include "tests/contract/service_world.h"

namespace {

class File_Cases : public Service_Cases {
 protected:
  File_Cases() {
    World->Make_Folder("Case");
    for (const std::string& name : Files.File_Names(Path("Case"))) {
      World->Set_Read_Only("Case\\" + name, false);
      Files.Delete(In_Case(name));
    }
  }

  std::string In_Case(const std::string& name) { return Path("Case\\" + name); }

  void Write(const std::string& name, std::string_view bytes) {
    EXPECT_EQ(Files.Create(In_Case(name))->Write(bytes), bytes.size());
  }

  std::string Read(const std::string& name) {
    std::string buffer = "what was there before";
    Files.Read_Whole(In_Case(name), buffer);
    return buffer;
  }

  int Error_Of_Reading(const std::string& path) {
    std::string buffer;
    return Error_Of([&] { Files.Read_Whole(path, buffer); });
  }

  int Error_Of_Creating(const std::string& path) {
    return Error_Of([&] { Files.Create(path); });
  }

  int Error_Of_Deleting(const std::string& path) {
    return Error_Of([&] { Files.Delete(path); });
  }

  platform::Files& Files = World->System().Files;
};

}  // namespace

TEST_F(File_Cases, What_was_written_is_read_byte_for_byte) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  Write("bytes", bytes + "\r\n\x1A\n");
  EXPECT_EQ(Read("bytes"), bytes + "\r\n\x1A\n");
}

TEST_F(File_Cases, Creating_empties_a_file) {
  Write("file", "a longer text");
  Write("file", "short");
  EXPECT_EQ(Read("file"), "short");
}

TEST_F(File_Cases, An_empty_file_is_there_and_empty) {
  Write("file", "");
  EXPECT_TRUE(Files.File_Exists(In_Case("file")));
  EXPECT_EQ(Read("file"), "");
}

TEST_F(File_Cases, Pieces_are_written_one_behind_the_other_and_can_be_cut_off) {
  const auto output = Files.Create(In_Case("file"));
  output->Write("one ");
  output->Write("two ");
  output->Cut(5);
  EXPECT_EQ(Read("file"), "one t");
}

TEST_F(File_Cases, Names_are_found_in_either_case) {
  Write("Mixed Case.Dat", "x");
  EXPECT_TRUE(Files.File_Exists(In_Case("mIXED cASE.dAT")));
  EXPECT_EQ(Read("MIXED CASE.DAT"), "x");
}

TEST_F(File_Cases, A_folder_is_no_file_but_a_file_counts_as_a_folder) {
  Write("file", "x");
  EXPECT_FALSE(Files.File_Exists(Path("Case")));
  EXPECT_TRUE(Files.Folder_Exists(Path("Case")));
  EXPECT_TRUE(Files.Folder_Exists(In_Case("file")));
  EXPECT_FALSE(Files.Folder_Exists(In_Case("none")));
  EXPECT_FALSE(Files.File_Exists(In_Case("none")));
  EXPECT_FALSE(Files.File_Exists(Path("None\\file")));
}

TEST_F(File_Cases, A_missing_file_is_error_53_and_a_missing_folder_error_76) {
  EXPECT_EQ(Error_Of_Reading(In_Case("none")), 53);
  EXPECT_EQ(Error_Of_Deleting(In_Case("none")), 53);
  EXPECT_EQ(Error_Of_Reading(Path("None\\file")), 76);
  EXPECT_EQ(Error_Of_Creating(Path("None\\file")), 76);
  EXPECT_EQ(Error_Of([this] { Files.File_Names(Path("None")); }), 76);
}

TEST_F(File_Cases, A_folder_in_a_files_place_is_error_75) {
  EXPECT_EQ(Error_Of_Reading(Path("Case")), 75);
  EXPECT_EQ(Error_Of_Creating(Path("Case")), 75);
  EXPECT_EQ(Error_Of_Deleting(Path("Case")), 75);
}

TEST_F(File_Cases, A_file_that_is_being_written_can_be_read_and_nothing_else) {
  const auto output = Files.Create(In_Case("file"));
  output->Write("x");
  EXPECT_EQ(Read("file"), "x");
  EXPECT_EQ(Error_Of_Creating(In_Case("file")), 70);
  EXPECT_EQ(Error_Of_Deleting(In_Case("file")), 70);
}

TEST_F(File_Cases, A_file_that_was_closed_can_be_deleted) {
  Write("file", "x");
  Files.Delete(In_Case("FILE"));
  EXPECT_FALSE(Files.File_Exists(In_Case("file")));
}

TEST_F(File_Cases, A_copy_has_the_bytes_and_the_time_of_its_source) {
  Write("source", "new");
  Write("target", "old, and longer");
  const basic::Moment written = Files.Last_Change(In_Case("source"));
  Files.Copy(In_Case("source"), In_Case("target"));
  Files.Copy(In_Case("source"), In_Case("another"));
  EXPECT_EQ(Read("target"), "new");
  EXPECT_EQ(Read("another"), "new");
  EXPECT_EQ(Files.Last_Change(In_Case("target")), written);
  EXPECT_EQ(Files.Last_Change(In_Case("another")), written);
}

TEST_F(File_Cases, A_file_was_changed_a_moment_ago_when_it_has_just_been_written) {
  Write("file", "x");
  const std::int64_t now = basic::Second_Count(World->System().Clock.Now());
  EXPECT_NEAR(static_cast<double>(basic::Second_Count(Files.Last_Change(In_Case("file")))), static_cast<double>(now),
              5);
  EXPECT_EQ(Error_Of([&] { Files.Last_Change(In_Case("none")); }), 53);
}

TEST_F(File_Cases, A_file_takes_anothers_place_and_leaves_none_of_its_own) {
  Write("new", "new");
  Write("file", "old, and longer");
  if (Files.Move_Over(In_Case("new"), In_Case("file"))) {
    EXPECT_EQ(Read("file"), "new");
    EXPECT_FALSE(Files.File_Exists(In_Case("new")));
  }
  Write("new", "first");
  if (Files.Move_Over(In_Case("new"), In_Case("free"))) {
    EXPECT_EQ(Read("free"), "first");
  }
}

TEST_F(File_Cases, A_file_that_cannot_take_a_place_stays_where_it_is) {
  Write("new", "new");
  Write("file", "old");
  const auto move = [&](const std::string& from, const std::string& to) {
    return Error_Of([&] { Files.Move_Over(from, to); });
  };
  EXPECT_EQ(move(In_Case("none"), In_Case("file")), 53);
  EXPECT_EQ(move(In_Case("new"), Path("Case")), 75) << "a folder is there";
  EXPECT_EQ(Read("new"), "new");
  EXPECT_EQ(Read("file"), "old");
}

TEST_F(File_Cases, A_file_gets_a_name_that_no_file_has) {
  Write("file", "x");
  Files.Rename(In_Case("file"), In_Case("other"));
  EXPECT_EQ(Read("other"), "x");
  EXPECT_FALSE(Files.File_Exists(In_Case("file")));
  Write("file", "y");
  EXPECT_NE(Error_Of([&] { Files.Rename(In_Case("file"), In_Case("other")); }), 0);
  EXPECT_EQ(Read("other"), "x");
  EXPECT_EQ(Read("file"), "y");
}

TEST_F(File_Cases, To_check_a_file_for_writing_changes_nothing) {
  Write("file", "x");
  Files.Check_Writing(In_Case("file"));
  Files.Check_Writing(In_Case("none"));
  EXPECT_EQ(Read("file"), "x");
  EXPECT_FALSE(Files.File_Exists(In_Case("none")));
  EXPECT_EQ(Error_Of([&] { Files.Check_Writing(Path("Case")); }), 75);
  const auto output = Files.Create(In_Case("file"));
  EXPECT_EQ(Error_Of([&] { Files.Check_Writing(In_Case("file")); }), 70);
}

TEST_F(File_Cases, A_read_only_or_hidden_file_is_not_written_until_that_is_allowed) {
  for (const bool hidden : {false, true}) {
    Write("source", "y");
    Write("file", "x");
    if (hidden) World->Hide("Case\\file");
    else World->Set_Read_Only("Case\\file", true);
    EXPECT_EQ(Error_Of([&] { Files.Check_Writing(In_Case("file")); }), 75);
    EXPECT_EQ(Error_Of_Creating(In_Case("file")), 75);
    EXPECT_EQ(Error_Of([&] { Files.Copy_Over(In_Case("source"), In_Case("file")); }), 75);
    EXPECT_EQ(Read("file"), "x");
    EXPECT_EQ(Files.File_Names(Path("Case")), (std::vector<std::string>{"file", "source"}));
    Files.Allow_Writing(In_Case("file"));
    EXPECT_EQ(Error_Of([&] { Files.Check_Writing(In_Case("file")); }), 0);
    Write("file", "z");
    EXPECT_EQ(Error_Of_Deleting(In_Case("file")), 0);
  }
}

TEST_F(File_Cases, A_file_written_beside_another_takes_its_place_when_it_is_finished) {
  Write("file", "old");
  {
    const auto given_up = Files.Create_Beside(In_Case("file"));
    given_up->Write("half");
    EXPECT_EQ(Read("file"), "old");
  }
  const auto output = Files.Create_Beside(In_Case("file"));
  output->Write("new and");
  output->Cut(4);
  output->Write("whole");
  output->Finish();
  EXPECT_EQ(Read("file"), "new whole");
  EXPECT_EQ(Files.File_Names(Path("Case")), std::vector<std::string>{"file"});
}

TEST_F(File_Cases, A_copy_over_a_file_keeps_the_time_and_leaves_nothing_beside_it) {
  Write("source", "new");
  Write("file", "old, and longer");
  const basic::Moment written = Files.Last_Change(In_Case("source"));
  Files.Copy_Over(In_Case("source"), In_Case("file"));
  EXPECT_EQ(Read("file"), "new");
  EXPECT_EQ(Files.Last_Change(In_Case("file")), written);
  EXPECT_EQ(Error_Of([&] { Files.Copy_Over(In_Case("none"), In_Case("file")); }), 53);
  EXPECT_EQ(Files.File_Names(Path("Case")), (std::vector<std::string>{"file", "source"}));
}

TEST_F(File_Cases, A_file_between_two_renamings_is_found_again) {
  Write("file.~bak", "old");
  Write("file.~new", "ne");
  Files.Recover(In_Case("file"));
  EXPECT_EQ(Read("file"), "old");
  Write("file.~bak", "older");
  Files.Recover(In_Case("file"));
  EXPECT_EQ(Read("file"), "old");
  EXPECT_EQ(Files.File_Names(Path("Case")), std::vector<std::string>{"file"});
}

TEST_F(File_Cases, A_new_file_that_is_left_takes_the_place_if_it_is_whole) {
  Write("file", "half");
  Write("file.~whole", "new");
  Files.Recover(In_Case("file"));
  EXPECT_EQ(Read("file"), "new");
  Write("file.~new", "newer");
  Files.Recover(In_Case("file"));
  EXPECT_EQ(Read("file"), "new");
  EXPECT_EQ(Files.File_Names(Path("Case")), std::vector<std::string>{"file"});
}

TEST_F(File_Cases, A_file_that_is_brought_to_the_disk_stays_as_it_is) {
  Write("file", "x");
  Files.Bring_To_Disk(In_Case("file"));
  EXPECT_EQ(Read("file"), "x");
  EXPECT_EQ(Error_Of([&] { Files.Bring_To_Disk(In_Case("none")); }), 53);
}

TEST_F(File_Cases, A_backup_takes_the_place_of_a_file) {
  Write("backup", "new");
  Write("file", "old");
  Files.Replace(In_Case("backup"), In_Case("file"));
  EXPECT_EQ(Read("file"), "new");
  EXPECT_EQ(Files.File_Names(Path("Case")), std::vector<std::string>{"file"});
}

TEST_F(File_Cases, What_cannot_be_copied_is_an_error) {
  Write("file", "x");
  const auto copy = [&](const std::string& from, const std::string& to) {
    return Error_Of([&] { Files.Copy(from, to); });
  };
  EXPECT_EQ(copy(In_Case("none"), In_Case("target")), 53);
  EXPECT_EQ(copy(Path("None\\file"), In_Case("target")), 76);
  EXPECT_EQ(copy(In_Case("file"), Path("None\\target")), 76);
  EXPECT_EQ(copy(In_Case("file"), Path("Case")), 75);
  EXPECT_EQ(copy(In_Case("file"), In_Case("FILE")), 70);
  EXPECT_EQ(copy(Path("Case\\..\\Case\\file"), In_Case("file")), 70);
  EXPECT_EQ(copy(Path("None\\..\\Case\\file"), In_Case("file")), 70);
  const auto output = Files.Create(In_Case("target"));
  EXPECT_EQ(copy(In_Case("file"), In_Case("target")), 70);
  EXPECT_EQ(Read("file"), "x");
}

TEST_F(File_Cases, A_read_only_file_is_not_deleted_and_its_copy_can_be) {
  Write("source", "x");
  Write("target", "old");
  const basic::Moment written = Files.Last_Change(In_Case("source"));
  World->Set_Read_Only("Case\\source", true);
  EXPECT_EQ(Read("source"), "x");
  EXPECT_EQ(Error_Of_Deleting(In_Case("source")), 75);
  for (const char* const name : {"target", "another"}) {
    Files.Copy(In_Case("source"), In_Case(name));
    EXPECT_EQ(Read(name), "x");
    EXPECT_EQ(Files.Last_Change(In_Case(name)), written);
    Write(name, "y");
    EXPECT_EQ(Read(name), "y");
    EXPECT_EQ(Error_Of_Deleting(In_Case(name)), 0);
  }
}

TEST_F(File_Cases, Paths_are_the_same_without_regard_to_case) {
  EXPECT_TRUE(
      Files.Same_Path("C:\\B\xFC"
                      "cher\\calendar.dat",
                      "c:\\B\xDC"
                      "CHER\\Calendar.DAT"));
  EXPECT_TRUE(Files.Same_Path("", ""));
  EXPECT_FALSE(Files.Same_Path("C:\\a", "C:\\a "));
  EXPECT_FALSE(Files.Same_Path("C:\\b\\..\\a", "C:\\a")) << "the same file another way";
}

TEST_F(File_Cases, The_files_of_a_folder_are_listed_without_regard_to_case_and_without_folders) {
  for (const char* const name : {"b.txt", "C.txt", "a.txt", "A2.txt"}) Write(name, "");
  World->Make_Folder("Case\\Folder");
  EXPECT_EQ(Files.File_Names(Path("Case")), (std::vector<std::string>{"a.txt", "A2.txt", "b.txt", "C.txt"}));
}

TEST_F(File_Cases, The_folders_of_a_folder_are_listed_without_regard_to_case_and_without_files) {
  for (const char* const name : {"b", "C", "a"}) World->Make_Folder(std::string("Folders\\") + name);
  Files.Create(Path("Folders\\file"));
  EXPECT_EQ(Files.Folder_Names(Path("Folders")), (std::vector<std::string>{"a", "b", "C"}));
  EXPECT_TRUE(Files.Folder_Names(Path("Folders\\a")).empty());
  EXPECT_EQ(Error_Of([this] { Files.Folder_Names(Path("None")); }), 76);
}

TEST_F(File_Cases, The_program_lies_in_its_folder) {
  const std::string folder = Files.Program_Folder();
  EXPECT_TRUE(Files.Folder_Exists(folder));
  EXPECT_NE(folder.back(), '\\');
  EXPECT_EQ(Files.Program_Path().substr(0, folder.size() + 1), folder + '\\');
  EXPECT_EQ(Files.Program_Path().substr(Files.Program_Path().size() - 4), ".exe");
}
