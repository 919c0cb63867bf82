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

  /// Throws what Create would for a file that is there, and leaves it as it is. Does nothing if there is no such file.
  virtual void Check_Writing(const std::string& path) = 0;

  /// Takes from a file what keeps it from being written or deleted: that it is read-only or hidden. A failure is silent.
  virtual void Allow_Writing(const std::string& path) = 0;

  /// Returns when the bytes of a file are on the disk. Throws error 53, 61, 70, 75 or 76.
  virtual void Bring_To_Disk(const std::string& path) = 0;

  /// Puts a file into the place of `to` or of nothing. That is on the disk on return, and one step to all programs; on a
  /// file system without a journal it is two, between which a power cut leaves the new file alone, under its own name.
  /// Returns false, with nothing changed, on a system that can't do it by one. Throws error 53, 61, 70, 75 or 76, with
  /// nothing changed; 70 where another program holds one of the two.
  virtual bool Move_Over(const std::string& from, const std::string& to) = 0;

  /// Gives a file another name, which no file has yet. Throws error 53, 70, 75 or 76; 70 where another program holds it.
  virtual void Rename(const std::string& from, const std::string& to) = 0;

  /// Throws error 53, 70 or 75.
  virtual void Delete(const std::string& path) = 0;

  /// Puts a copy of a file in the place of `to`, or makes that; the copy keeps the time of the last change, but isn't
  /// read-only where its source is. Throws error 53, 75 or 76, error 70 for a file that is being written or that is to be
  /// copied onto itself, and error 61 on a full disk, which leaves nothing of the copy.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  /// The name of the new file for as long as it is being written.
  static std::string Name_Beside(const std::string& path);
  std::unique_ptr<basic::Output_File> Create_Beside(const std::string& path) final;

  // Whenever the power goes in one of these, or while a file created beside is finished, the old or the new file is
  // there whole after Recover, also where another program lets the old one be written, but neither deleted nor renamed.
  // They begin with Refuse_If_Left.

  /// Puts a file, be it read-only, into the place of another or of none. Takes no room on the disk. Throws error 53, 61,
  /// 70, 75 or 76.
  void Replace(const std::string& from, const std::string& to);

  /// The same as Copy, by a new file that takes the place of `to`. A second spelling of a path isn't known as such.
  void Copy_Over(const std::string& from, const std::string& to);

  /// Throws error 75 if what belongs at the path has another name: it can't have been read, so what would take its place
  /// has nothing of what it holds. Tries Put_Back first, so that it is there for the next reading.
  void Refuse_If_Left(const std::string& path);

  /// Ends a replacement where a power cut has left the file without its name, or a new one that is whole. Returns false
  /// after a failure.
  bool Put_Back(const std::string& path);

  /// The same, and takes away what is left of a replacement. Called before the first look for the file.
  void Recover(const std::string& path);

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
