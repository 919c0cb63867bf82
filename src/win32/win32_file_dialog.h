// The system's open and save dialogs.
#pragma once

#include "platform/file_dialog.h"
#include "toolkit/backend.h"
#include "win32/window_context.h"

namespace win32 {

class Win32_File_Dialog final : public platform::File_Dialog {
 public:
  Win32_File_Dialog(Window_Context& context, toolkit::Backend& backend) : context_(context), backend_(backend) {}

  bool Show_Open(platform::File_Dialog_Record& record) override { return Show(record, "GetOpenFileNameA"); }
  bool Show_Save(platform::File_Dialog_Record& record) override { return Show(record, "GetSaveFileNameA"); }

 private:
  bool Show(platform::File_Dialog_Record& record, const char* function);
  bool Call(platform::File_Dialog_Record& record, const char* function) const;

  Window_Context& context_;
  toolkit::Backend& backend_;
};

}  // namespace win32
