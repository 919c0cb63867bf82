// Files as others leave them or hold them: read-only, hidden, open for a moment.
#include <gtest/gtest.h>

#include <thread>

#include "tests/basic/error_of.h"
#include "tests/win32/detour.h"
#include "win32/disk_files.h"
#include "win32/handle.h"

namespace {

DWORD flush_failure = 0;

BOOL WINAPI Fail_To_Flush(HANDLE) {
  SetLastError(flush_failure);
  return FALSE;
}

class Held_Files : public ::testing::Test {
 protected:
  Held_Files() {
    for (const char* const left : {"", ".~new", ".~whole", ".~bak"}) Remove(File + left);
    Remove(Other);
    Write(File, "old");
  }
  ~Held_Files() override {
    for (const char* const left : {"", ".~new", ".~whole", ".~bak"}) Remove(File + left);
    Remove(Other);
  }

  static void Remove(const std::string& path) {
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(path.c_str());
  }

  void Write(const std::string& path, const std::string& text) { Files.Create(path)->Write(text); }

  std::string Read(const std::string& path) {
    std::string buffer;
    Files.Read_Whole(path, buffer);
    return buffer;
  }

  /// As a virus scanner that looks into the file and lets nobody else to it.
  static win32::Handle_Owner Hold(const std::string& path) {
    win32::Handle_Owner file(
        win32::Valid_Or_None(CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)));
    EXPECT_TRUE(file) << GetLastError();
    return file;
  }

  /// As a program that reads the file and lets others write it, but not delete it.
  static win32::Handle_Owner Use(const std::string& path) {
    win32::Handle_Owner file(win32::Valid_Or_None(CreateFileA(
        path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr)));
    EXPECT_TRUE(file) << GetLastError();
    return file;
  }

  void Save(const std::string& text) {
    const auto output = Files.Create_Beside(File);
    output->Write(text);
    output->Finish();
  }

  /// Does the work while that file is held, and is freed after 50 milliseconds.
  template <class Work>
  void While_Held(const std::string& path, const Work& work) {
    win32::Handle_Owner file = Hold(path);
    std::jthread scanner([&file] {
      Sleep(50);
      file.Reset(nullptr);
    });
    EXPECT_NO_THROW(work());
  }

  win32::Disk_Files Files;
  const std::string File = Files.Program_Folder() + "\\held.dat", Other = Files.Program_Folder() + "\\other.dat";
};

}  // namespace

TEST_F(Held_Files, A_new_file_that_is_held_for_a_moment_takes_its_place_after_it) {
  Write(Other, "new");
  While_Held(Other, [this] { Files.Replace(Other, File); });
  EXPECT_EQ(Read(File), "new");
}

TEST_F(Held_Files, An_old_file_that_is_held_for_a_moment_is_replaced_after_it) {
  Write(Other, "new");
  While_Held(File, [this] { Files.Replace(Other, File); });
  EXPECT_EQ(Read(File), "new");
}

TEST_F(Held_Files, A_file_that_is_held_for_a_moment_is_renamed_after_it) {
  While_Held(File, [this] { Files.Rename(File, Other); });
  EXPECT_EQ(Read(Other), "old");
}

TEST_F(Held_Files, A_file_that_stays_held_is_an_error_and_stays_as_it_is) {
  Write(Other, "new");
  {
    const win32::Handle_Owner held = Hold(Other);
    EXPECT_EQ(Error_Of([this] { Files.Replace(Other, File); }), 70);
  }
  EXPECT_EQ(Read(File), "old");
  EXPECT_EQ(Read(Other), "new");
}

TEST_F(Held_Files, A_file_that_another_program_keeps_from_being_deleted_is_written_in_its_place) {
  Write(Other, "newer");
  {
    const win32::Handle_Owner used = Use(File);
    Save("new");
    EXPECT_EQ(Read(File), "new");
    Files.Copy_Over(Other, File);
    EXPECT_EQ(Read(File), "newer");
    Write(Other, "newest");
    Files.Replace(Other, File);
    EXPECT_EQ(Read(File), "newest");
  }
  for (const std::string& left : {File + ".~new", File + ".~whole", File + ".~bak", Other})
    EXPECT_FALSE(Files.File_Exists(left)) << left;
}

TEST_F(Held_Files, A_disk_that_knows_nothing_of_flushing_is_flushed) {
  const Detour detour("kernel32.dll", "FlushFileBuffers", reinterpret_cast<const void*>(&Fail_To_Flush));
  for (const DWORD failure : {ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED}) {
    flush_failure = failure;
    const std::string text = "after failure " + std::to_string(failure);
    EXPECT_EQ(Error_Of([&] { Save(text); }), 0);
    EXPECT_EQ(Read(File), text);
  }
  flush_failure = ERROR_DISK_FULL;
  EXPECT_EQ(Error_Of([&] { Save("lost"); }), 61);
  flush_failure = ERROR_IO_DEVICE;
  EXPECT_EQ(Error_Of([&] { Save("lost"); }), 75);
  EXPECT_EQ(Read(File), "after failure " + std::to_string(ERROR_NOT_SUPPORTED));
}

TEST_F(Held_Files, A_system_file_is_not_written_until_that_is_allowed) {
  ASSERT_NE(SetFileAttributesA(File.c_str(), FILE_ATTRIBUTE_SYSTEM), 0);
  EXPECT_EQ(Error_Of([&] { Save("new"); }), 75);
  EXPECT_EQ(Read(File), "old");
  Files.Allow_Writing(File);
  Save("new");
  EXPECT_EQ(Read(File), "new");
}

TEST_F(Held_Files, A_file_that_is_held_is_there_but_neither_read_nor_copied) {
  {
    const win32::Handle_Owner held = Hold(File);
    std::string bytes;
    EXPECT_TRUE(Files.File_Exists(File));
    EXPECT_EQ(Error_Of([&] { Files.Read_Whole(File, bytes); }), 70);
    EXPECT_EQ(Error_Of([this] { Files.Copy(File, Other); }), 70);
  }
  EXPECT_EQ(Read(File), "old");
}

TEST_F(Held_Files, What_is_left_read_only_or_hidden_of_a_replacement_is_in_nobodys_way) {
  for (const DWORD attribute : {FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_HIDDEN}) {
    for (const char* const left : {".~new", ".~bak"}) {
      Write(File + left, "left");
      ASSERT_NE(SetFileAttributesA((File + left).c_str(), attribute), 0);
    }
    Files.Recover(File);
    EXPECT_FALSE(Files.File_Exists(File + ".~new"));
    EXPECT_FALSE(Files.File_Exists(File + ".~bak"));
    Write(File + ".~new", "left");
    ASSERT_NE(SetFileAttributesA((File + ".~new").c_str(), attribute), 0);
    const auto output = Files.Create_Beside(File);
    output->Write("new");
    output->Finish();
    EXPECT_EQ(Read(File), "new");
  }
}

TEST_F(Held_Files, A_copy_of_a_read_only_file_can_be_written) {
  Write(Other, "new");
  ASSERT_NE(SetFileAttributesA(Other.c_str(), FILE_ATTRIBUTE_READONLY), 0);
  for (int copy = 1; copy <= 2; ++copy) Files.Copy_Over(Other, File);
  EXPECT_EQ(Read(File), "new");
  EXPECT_EQ(GetFileAttributesA(File.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
}
