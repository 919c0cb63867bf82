// A disk in memory. Names are found without regard to case, slashes count as backslashes, and a test can set up five
// faults: a folder in a file's place, a file that can be opened but takes no bytes, one that can't be opened to be read, and
// one that is read-only or hidden.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "memory/letter_case.h"
#include "memory/virtual_time.h"
#include "platform/files.h"

namespace memory {

class Memory_Files : public platform::Files {
 public:
  /// Starts with an empty program folder.
  explicit Memory_Files(const Virtual_Time& time);

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
  bool Same_Path(const std::string& a, const std::string& b) override { return Same_Name(a, b); }
  std::string Program_Folder() override;
  std::string Program_Path() override;

  /// The full path of a name in the program folder, with backslashes; a path with a drive stays as it is.
  [[nodiscard]] static std::string Full_Path(std::string_view name);

  /// Creates or replaces a file with these bytes, without faults, and the folders above it; replaces an empty folder
  /// too. Throws error 75 if a folder that isn't empty is at the path.
  void Put(const std::string& path, std::string_view bytes);

  /// The file's bytes; nothing if there is no such file.
  [[nodiscard]] std::optional<std::string> Bytes(const std::string& path) const;

  /// Makes a folder and those above it. Throws error 75 if a file is in the way.
  void Make_Folder(const std::string& path);

  /// Removes a file, or a folder with all that is in it; does nothing if there is neither.
  void Remove(const std::string& path);

  /// Puts a folder in the file's place, so that the path can't be opened: error 75.
  void Block(const std::string& path);

  /// From now on the file, created if it doesn't exist, can be opened, which empties it, but takes no bytes, and
  /// neither does a new one that is to take its place. A copy over it may be as long as the file is now.
  void Fill_Up(const std::string& path);

  /// From now on the file, which must exist, is there but can't be read, as one that another program keeps for itself: error
  /// 70. It can be put again.
  void Lock(const std::string& path) { Find(path)->Locked = true; }

  /// From now on the file, which must exist, is read-only, or no longer so: to write, delete or copy over a
  /// read-only one is error 75. It can be put again.
  void Set_Read_Only(const std::string& path, bool on) { Find(path)->Read_Only = on; }

  /// From now on the file, which must exist, is hidden: it is read, moved and deleted, but to write or copy over it is
  /// error 75. It can be put again.
  void Hide(const std::string& path) { Find(path)->Hidden = true; }

  struct Listed {
    std::string Name;
    bool Is_Folder;
  };

  /// What is in a folder, in no particular order. Throws error 76 if the folder doesn't exist.
  [[nodiscard]] std::vector<Listed> List(const std::string& folder) const;

 private:
  class Writer;
  struct Entry {
    std::string Name;  // in its first spelling
    std::string Bytes;
    basic::Moment Changed;
    bool Is_Folder = false;
    bool Full = false;
    bool Locked = false;
    bool Read_Only = false;
    bool Hidden = false;
    std::size_t Room = 0;  // how long a copy over a full one may be
    int Writers = 0;       // how often the file is open for writing
  };

  [[nodiscard]] std::vector<std::string> Names(const std::string& folder, bool of_folders) const;
  [[nodiscard]] const Entry* Find(std::string_view path) const;
  Entry* Find(std::string_view path);
  Entry& Make_File(const std::string& path);
  void Move(const std::string& from, const std::string& to);
  [[nodiscard]] bool Full(const std::string& key) const;
  void Check_Place(const std::string& path) const;
  void Check_Changeable(const std::string& path) const;

  const Virtual_Time& time_;
  std::map<std::string, Entry> entries_;  // by the path in upper case
};

}  // namespace memory
