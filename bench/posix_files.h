// The real disk behind the program where it is built for Linux: what the measurements read the event file through. The
// program's paths are Windows paths; the files of its folder lie in one folder of the disk.
#pragma once

#include "basic/text.h"
#include "platform/files.h"

namespace bench {

class Posix_Files final : public platform::Files {
 public:
  /// `folder` without a slash at its end.
  explicit Posix_Files(std::string folder) : folder_(std::move(folder)) {}

  void Read_Whole(const std::string& path, std::string& buffer) override;
  std::unique_ptr<basic::Output_File> Create(const std::string& path) override;
  bool File_Exists(const std::string& path) override;
  bool Folder_Exists(const std::string& path) override;
  std::vector<std::string> File_Names(const std::string& folder) override;
  std::vector<std::string> Folder_Names(const std::string& folder) override;
  void Check_Writing(const std::string& path) override;
  void Allow_Writing(const std::string& path) override;
  bool Move_Over(const std::string& from, const std::string& to) override;
  void Rename(const std::string& from, const std::string& to) override;
  void Delete(const std::string& path) override;
  void Copy(const std::string& from, const std::string& to) override;
  void Bring_To_Disk(const std::string& path) override;
  basic::Moment Last_Change(const std::string& path) override;
  bool Same_Path(const std::string& a, const std::string& b) override { return basic::Same_Letters(a, b); }
  std::string Program_Folder() override { return "C:\\Meridex"; }
  std::string Program_Path() override { return "C:\\Meridex\\meridex.exe"; }

 private:
  [[nodiscard]] std::string Real_Path(const std::string& path) const;

  std::string folder_;
};

}  // namespace bench
