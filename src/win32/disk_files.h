// Files and folders of the disk.
#pragma once

#include "platform/files.h"

namespace win32 {

class Disk_Files final : public platform::Files {
 public:
  Disk_Files();

  void Read_Whole(const std::string& path, std::string& buffer) override;
  std::unique_ptr<basic::Output_File> Create(const std::string& path) override;
  bool File_Exists(const std::string& path) override;
  bool Folder_Exists(const std::string& path) override;
  std::vector<std::string> File_Names(const std::string& folder) override;
  std::vector<std::string> Folder_Names(const std::string& folder) override;
  void Check_Writing(const std::string& path) override;
  void Allow_Writing(const std::string& path) override;
  void Bring_To_Disk(const std::string& path) override;
  bool Move_Over(const std::string& from, const std::string& to) override;
  void Rename(const std::string& from, const std::string& to) override;
  void Delete(const std::string& path) override;
  void Copy(const std::string& from, const std::string& to) override;
  basic::Moment Last_Change(const std::string& path) override;
  bool Same_Path(const std::string& a, const std::string& b) override;
  std::string Program_Folder() override { return folder_; }
  std::string Program_Path() override { return path_; }

 private:
  std::string path_, folder_;
};

/// Throws error 53, 61, 70, 75 or 76, for the reason why the system's last call for a file failed.
[[noreturn]] void Throw_File_Error();

}  // namespace win32
