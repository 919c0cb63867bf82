// The system's open and save dialogs as a control: its properties are what the dialog is given and what comes back. It is
// never seen; its window is the one that the dialogs belong to.
#pragma once

#include <array>
#include <variant>
#include <vector>

#include "basic/run_error.h"
#include "dialogs/property_bag.h"
#include "platform/file_dialog.h"
#include "toolkit/dialog_owner.h"

namespace dialogs {

/// Error 32755, with where the system's help explains it.
class Cancel_Error : public basic::Run_Error {
 public:
  Cancel_Error() noexcept : Run_Error(basic::Error_Number::Cancel_Selected) {}

  static constexpr const char* Help_File = "cmdlg98.chm";
  static constexpr int Help_Context = 32755;
};

/// What stands before the first NUL; "" of "". Throws error 5 for a text without a NUL.
std::string TrimNull(const std::string& text);

/// The "|" of a filter become NULs, and two more end it.
std::string TranslateFilter(std::string_view filter);

class OpenSaveDialog : public toolkit::Dialog_Owner {
 public:
  OpenSaveDialog(toolkit::Form& window, std::string name, platform::File_Dialog& dialogs);

  std::string DialogTitle;
  bool CancelError = false;  ///< a cancelled dialog is an error
  std::string Filter;        ///< `description|pattern`, joined by "|"
  std::string InitDir;
  basic::Int16 FilterIndex;        ///< of the file type in use, from 1; 0 at first
  std::string DefaultExt;          ///< kept, and given to no dialog
  std::string FileName;            ///< the full path; of several files the dialog's whole buffer
  std::string FileTitle;           ///< the name without the folder
  basic::Int16 MaxFileSize = 260;  ///< the length of the buffer for FileTitle
  std::int32_t Flags = 0;          ///< the system's; 512: several files may be chosen

  /// Show the dialog and take over what was chosen; without a choice all properties stay. Throw error 32755 for that where
  /// CancelError is set, error 5 for a negative MaxFileSize or a result without a NUL, and error 6 for a number of a file
  /// type beyond 16 bits.
  void ShowOpen();
  void ShowSave();

  /// Splits FileName after a choice of several files: the folder, unless `Dir` holds one, and behind the `Count` files that
  /// there are already the names. `Files` counts from 1: its first element is number 1. Throws error 5 where FileName is a
  /// bare name without a NUL, error 9 for a `Count` below 0 and error 6 beyond 32 bits.
  void ParseMultiFileName(std::string& Dir, std::vector<std::string>& Files, std::int32_t& Count);

  /// The defaults.
  void Initialise();
  /// The ten properties in their order. Throws error 13 for a value of another type.
  void Read_Properties(Property_Bag& bag);
  void Write_Properties(Property_Bag& bag) const;

  /// Its size is fixed.
  void Changed(toolkit::Aspect aspect) override;

 private:
  using Member = std::variant<std::string OpenSaveDialog::*, bool OpenSaveDialog::*, basic::Int16 OpenSaveDialog::*,
                              std::int32_t OpenSaveDialog::*>;
  struct Stored_Property {
    const char* Name;
    Member Variable;
    Property_Value Default;
  };
  static const std::array<Stored_Property, 10>& Stored_Properties();

  enum class Kind { Open, Save };
  void Show(Kind kind);
  [[nodiscard]] platform::File_Dialog_Record Make_Record(Kind kind) const;
  void Take_Result(const platform::File_Dialog_Record& record, Kind kind);

  platform::File_Dialog& dialogs_;
};

}  // namespace dialogs
