#include "win32/win32_file_dialog.h"

#include "win32/windows_api.h"
// Behind the system's own header.
#include <commdlg.h>

#include <cstddef>

#include "win32/behind_box.h"
#include "win32/system_library.h"

namespace win32 {

namespace {

/// The length of the structure as the oldest systems know it: up to the template's name.
constexpr DWORD length_of_the_first_version =
    offsetof(OPENFILENAMEA, lpTemplateName) + sizeof(OPENFILENAMEA::lpTemplateName);
static_assert(sizeof(void*) != 4 || length_of_the_first_version == 76);

OPENFILENAMEA As_The_System_Has_It(platform::File_Dialog_Record& record, HINSTANCE instance) {
  OPENFILENAMEA fields = {};
  fields.lStructSize = length_of_the_first_version;
  fields.hwndOwner = To_Window(record.Owner);
  fields.hInstance = instance;
  fields.lpstrFilter = record.Filter.c_str();
  fields.nFilterIndex = record.Filter_Index;
  fields.lpstrFile = record.File.data();
  fields.nMaxFile = static_cast<DWORD>(record.File.size());
  fields.lpstrFileTitle = record.File_Title.data();
  fields.nMaxFileTitle = static_cast<DWORD>(record.File_Title.size());
  fields.lpstrInitialDir = record.Initial_Folder.c_str();
  fields.lpstrTitle = record.Title.c_str();
  fields.Flags = record.Flags;
  return fields;
}

}  // namespace

bool Win32_File_Dialog::Call(platform::File_Dialog_Record& record, const char* function) const {
  const Library_Owner dialogs = System_Library("comdlg32.dll");
  const auto show = Find_Function<BOOL WINAPI(OPENFILENAMEA*)>(dialogs.Get(), function);
  OPENFILENAMEA fields = As_The_System_Has_It(record, context_.Instance);
  if (show == nullptr || show(&fields) == 0) return false;
  record.Flags = fields.Flags;
  record.Filter_Index = fields.nFilterIndex;
  return true;
}

bool Win32_File_Dialog::Show(platform::File_Dialog_Record& record, const char* function) {
  context_.Guard.Throw_If_Ending();
  context_.Windows.Settle();
  Program_Window* const active = context_.Windows.Around(Own_Active_Window());
  const Program_Window* const owner = context_.Windows.Around(To_Window(record.Owner));
  bool chosen = false;
  {
    const Behind_Box behind(context_, active);
    // The system itself disables the owner, and enables it before it hands the activity back.
    const toolkit::Input::Modal modal(backend_.Input, owner != nullptr ? &owner->Form() : nullptr);
    chosen = Call(record, function);
  }
  context_.Guard.Throw_If_Ending();
  if (active != nullptr) Give_Back_To(context_, active);
  backend_.Input.Catch_Up();
  return chosen;
}

}  // namespace win32
