// Files that another program keeps for itself.
#include "win32/disk_files.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "win32/handle.h"

TEST(Disk_Files_Test, A_file_that_is_kept_by_another_program_is_there_but_not_read_or_copied) {
  win32::Disk_Files files;
  const std::string path = files.Program_Folder() + "\\kept.csv", copy = files.Program_Folder() + "\\copy.csv";
  std::string bytes;
  {
    const win32::Handle_Owner kept(win32::Valid_Or_None(
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)));
    ASSERT_TRUE(kept);
    EXPECT_TRUE(files.File_Exists(path));
    EXPECT_EQ(Error_Of([&] { files.Read_Whole(path, bytes); }), 70);
    EXPECT_EQ(Error_Of([&] { files.Copy(path, copy); }), 70);
  }
  files.Read_Whole(path, bytes);
  EXPECT_EQ(bytes, "");
}
