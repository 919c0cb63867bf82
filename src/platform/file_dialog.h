// The system's dialogs that ask for a file to open or to save. While one is open events are served.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window_handle.h"

namespace platform {

/// What a dialog is given, and what it gives back.
struct File_Dialog_Record {
  Window_Handle Owner = 0;
  std::string Title;
  std::string Initial_Folder;
  std::string Filter;              ///< descriptions and patterns in turn, a NUL behind each and one more at the end
  std::uint32_t Filter_Index = 0;  ///< the file type in use, counted from 1; in and out
  std::uint32_t Flags = 0;         ///< the system's own; in and out
  std::string File;                ///< as long as there is room for the full path; filled up with NULs
  std::string File_Title;          ///< the same for the file's name alone
};

class File_Dialog {
 public:
  virtual ~File_Dialog() = default;

  /// Return whether the user has chosen a file. Otherwise, and where the dialog fails, the record stays as it was.
  virtual bool Show_Open(File_Dialog_Record& record) = 0;
  virtual bool Show_Save(File_Dialog_Record& record) = 0;
};

}  // namespace platform
