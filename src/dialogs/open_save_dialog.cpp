#include "dialogs/open_save_dialog.h"

#include <utility>

#include "basic/text.h"

namespace dialogs {

namespace {

using basic::Error_Number;
using basic::Run_Error;

constexpr double size_in_twips = 390;
constexpr std::uint32_t flag_of_several_files = 512;
constexpr std::size_t room_for_a_path = 260;
constexpr std::size_t room_for_several = 8192;
constexpr std::string_view end_of_list("\0\0", 2);

/// A text of NULs alone. Throws error 5 for a negative length.
std::string Buffer(int length) {
  if (length < 0) throw Run_Error(Error_Number::Invalid_Procedure_Call);
  return std::string(static_cast<std::size_t>(length), '\0');
}

void Add_File(std::vector<std::string>& files, std::int32_t& count, std::string_view file) {
  if (!std::in_range<std::int32_t>(std::int64_t{count} + 1)) throw Run_Error(Error_Number::Overflow);
  if (++count < 1) throw Run_Error(Error_Number::Subscript_Out_Of_Range);
  files.resize(static_cast<std::size_t>(count));
  files.back() = file;
}

}  // namespace

std::string TrimNull(const std::string& text) {
  return text.empty() ? text : std::string(basic::Split_At_First(text, '\0').left);
}

std::string TranslateFilter(std::string_view filter) {
  return basic::Replace_All(filter, "|", std::string_view("\0", 1)).append(end_of_list);
}

OpenSaveDialog::OpenSaveDialog(toolkit::Form& window, std::string name, platform::File_Dialog& dialogs)
    : Dialog_Owner(window, std::move(name)), dialogs_(dialogs) {
  Place({0, 0, size_in_twips, size_in_twips});
}

void OpenSaveDialog::Changed(toolkit::Aspect aspect) {
  const toolkit::Bounds& place = In_Twips();
  if (aspect == toolkit::Aspect::Bounds) Place({place.Left, place.Top, size_in_twips, size_in_twips});
  Control::Changed(aspect);
}

void OpenSaveDialog::ShowOpen() { Show(Kind::Open); }

void OpenSaveDialog::ShowSave() { Show(Kind::Save); }

void OpenSaveDialog::Show(Kind kind) {
  platform::File_Dialog_Record record = Make_Record(kind);
  if (!Filter.empty() && FilterIndex == 0) FilterIndex = 1;
  record.Filter_Index = static_cast<std::uint32_t>(FilterIndex.Value());
  const bool chosen = kind == Kind::Open ? dialogs_.Show_Open(record) : dialogs_.Show_Save(record);
  if (chosen) Take_Result(record, kind);
  else if (CancelError) throw Cancel_Error();
}

/// All but the number of the file type.
platform::File_Dialog_Record OpenSaveDialog::Make_Record(Kind kind) const {
  platform::File_Dialog_Record record;
  record.Owner = Handle();
  record.Title = DialogTitle;
  record.Initial_Folder = InitDir;
  if (!Filter.empty()) record.Filter = TranslateFilter(Filter);
  record.Flags = static_cast<std::uint32_t>(Flags);
  const bool several = kind == Kind::Open && (record.Flags & flag_of_several_files) != 0;
  record.File.resize(several ? room_for_several : room_for_a_path);
  record.File_Title = several ? std::string(room_for_several, '\0') : Buffer(MaxFileSize.Value());
  return record;
}

/// Whether several files came back is told by the flags that came back.
void OpenSaveDialog::Take_Result(const platform::File_Dialog_Record& record, Kind kind) {
  if (kind == Kind::Open && (record.Flags & flag_of_several_files) != 0) {
    FileName = record.File;
  } else {
    FileName = TrimNull(record.File);
    FileTitle = TrimNull(record.File_Title);
  }
  Flags = static_cast<std::int32_t>(record.Flags);
  FilterIndex = static_cast<std::int32_t>(record.Filter_Index);
}

void OpenSaveDialog::ParseMultiFileName(std::string& Dir, std::vector<std::string>& Files, std::int32_t& Count) {
  const std::size_t end = FileName.find(end_of_list);
  if (end != std::string::npos) {
    std::string_view rest = std::string_view(FileName).substr(0, end);
    for (std::size_t nul = rest.find('\0'); nul != std::string_view::npos; nul = rest.find('\0')) {
      const std::string_view piece = rest.substr(0, nul);
      if (Dir.empty()) Dir = piece;
      else Add_File(Files, Count, piece);
      rest.remove_prefix(nul + 1);
    }
    Add_File(Files, Count, rest);
    FileName = TrimNull(FileName);
    return;
  }
  Count = 1;
  const std::size_t backslash = FileName.rfind('\\');
  const bool in_a_folder = backslash != std::string::npos && backslash > 0;
  Dir = in_a_folder ? FileName.substr(0, backslash) : std::string();
  Files = {in_a_folder ? FileName.substr(backslash + 1) : FileName};
  if (backslash == std::string::npos) FileName = TrimNull(FileName);
}

const std::array<OpenSaveDialog::Stored_Property, 10>& OpenSaveDialog::Stored_Properties() {
  static const std::array<Stored_Property, 10> properties{
      {{"DialogTitle", &OpenSaveDialog::DialogTitle, ""},
       {"CancelError", &OpenSaveDialog::CancelError, false},
       {"Filter", &OpenSaveDialog::Filter, ""},
       {"InitDir", &OpenSaveDialog::InitDir, ""},
       {"FilterIndex", &OpenSaveDialog::FilterIndex, basic::Int16(0)},
       {"DefaultExt", &OpenSaveDialog::DefaultExt, ""},
       {"FileName", &OpenSaveDialog::FileName, ""},
       {"FileTitle", &OpenSaveDialog::FileTitle, ""},
       {"MaxFileSize", &OpenSaveDialog::MaxFileSize, basic::Int16(260)},
       {"Flags", &OpenSaveDialog::Flags, std::int32_t{0}}}};
  return properties;
}

namespace {

/// Sets a property of an owner; a value of another type is error 13.
template <class Owner, class Value>
void Set(Owner& owner, Value Owner::*variable, const Property_Value& value) {
  const Value* const taken = std::get_if<Value>(&value);
  if (taken == nullptr) throw Run_Error(Error_Number::Type_Mismatch);
  owner.*variable = *taken;
}

}  // namespace

void OpenSaveDialog::Initialise() {
  for (const Stored_Property& property : Stored_Properties())
    std::visit([&](auto variable) { Set(*this, variable, property.Default); }, property.Variable);
}

void OpenSaveDialog::Read_Properties(Property_Bag& bag) {
  for (const Stored_Property& property : Stored_Properties()) {
    const Property_Value value = bag.Read(property.Name, property.Default);
    std::visit([&](auto variable) { Set(*this, variable, value); }, property.Variable);
  }
}

void OpenSaveDialog::Write_Properties(Property_Bag& bag) const {
  for (const Stored_Property& property : Stored_Properties())
    std::visit([&](auto variable) { bag.Write(property.Name, this->*variable, property.Default); }, property.Variable);
}

}  // namespace dialogs
