// Files and folders, by their full paths.
#pragma once

#include <string>
#include <vector>

#include "basic/file_channel.h"
#include "basic/serial_day.h"

namespace platform {

class Files : public basic::Disk {
 public:
  /// Returns true if a file, not a folder, is at the path; false after a failure too.
  virtual bool File_Exists(const std::string& path) = 0;

  /// Returns true if a folder or a file is at the path; false after a failure too.
  virtual bool Folder_Exists(const std::string& path) = 0;

  /// The names of the files in a folder, sorted without regard to case. Throws error 76 if the folder doesn't exist.
  virtual std::vector<std::string> File_Names(const std::string& folder) = 0;

  /// The same for the folders in a folder.
  virtual std::vector<std::string> Folder_Names(const std::string& folder) = 0;

  /// Throws error 53, 70 or 75.
  virtual void Delete(const std::string& path) = 0;

  /// Puts a copy of a file in the place of `to`, or makes that; the copy keeps the time of the last change. Throws error 53,
  /// 75 or 76, error 70 for a file that is being written or that is to be copied onto itself, and error 61 on a full disk,
  /// which leaves nothing of the copy.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  /// The local time of a file's last change. Throws error 53 if it isn't there.
  virtual basic::Moment Last_Change(const std::string& path) = 0;

  /// Whether two paths are the same text but for the case of letters. A path that leads to the same file another way isn't
  /// known.
  virtual bool Same_Path(const std::string& a, const std::string& b) = 0;

  /// The folder of the executable, without a backslash at its end.
  virtual std::string Program_Folder() = 0;

  /// The full path of the executable: the program folder, its name and ".exe".
  virtual std::string Program_Path() = 0;
};

}  // namespace platform
