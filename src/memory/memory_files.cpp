#include "memory/memory_files.h"

#include <algorithm>
#include <utility>

namespace memory {

namespace {

using basic::Error_Number;
using basic::Run_Error;

constexpr std::string_view program_folder = "C:\\Meridex";
constexpr std::string_view program_name = "Meridex.exe";

/// The path with backslashes only, never two in a row and none at its end.
std::string Tidy(std::string_view path) {
  std::string result;
  for (const char c : path) {
    const char piece = c == '/' ? '\\' : c;
    if (piece == '\\' && !result.empty() && result.back() == '\\') continue;
    result += piece;
  }
  if (!result.empty() && result.back() == '\\') result.pop_back();
  return result;
}

/// The folder above, without a backslash at its end; empty above a drive.
std::string_view Above(std::string_view tidy_path) {
  const std::size_t end = tidy_path.rfind('\\');
  return end == std::string_view::npos ? std::string_view() : tidy_path.substr(0, end);
}

/// The path without "." and "..". Windows reads them so whether the folder before a ".." is there or not.
std::string Without_Dots(std::string_view tidy_path) {
  std::string result;
  while (!tidy_path.empty()) {
    const std::string_view name = tidy_path.substr(0, tidy_path.find('\\'));
    tidy_path.remove_prefix(std::min(name.size() + 1, tidy_path.size()));
    if (name == "..") result.resize(std::max(Above(result).size(), result.find(':') + 1));
    else if (name != ".") result.append(result.empty() ? "" : "\\").append(name);
  }
  return result;
}

std::string Key_Of(std::string_view path) { return Folded(Without_Dots(Tidy(path))); }

std::string_view Last_Name(std::string_view tidy_path) { return tidy_path.substr(tidy_path.rfind('\\') + 1); }

}  // namespace

/// A file that is open for writing. Meanwhile it can be read, but not deleted or opened for writing again.
class Memory_Files::Writer : public basic::Output_File {
 public:
  Writer(Memory_Files& files, std::string key) : files_(files), key_(std::move(key)) { ++Target()->Writers; }
  ~Writer() override {
    Entry* const target = Target();
    if (target != nullptr && target->Writers > 0) --target->Writers;  // 0: another file has taken its place
  }

  std::size_t Write(std::string_view bytes) override {
    Entry* const target = Target();
    if (target == nullptr || files_.Full(key_)) return 0;
    target->Bytes += bytes;
    target->Changed = files_.time_.Now();
    return bytes.size();
  }

  void Cut(std::size_t size) override {
    Entry* const target = Target();
    if (target != nullptr && size < target->Bytes.size()) target->Bytes.resize(size);
  }

 private:
  // Looked up each time: a test can remove the file while it is being written.
  [[nodiscard]] Entry* Target() const {
    const auto found = files_.entries_.find(key_);
    return found == files_.entries_.end() || found->second.Is_Folder ? nullptr : &found->second;
  }

  Memory_Files& files_;
  std::string key_;
};

Memory_Files::Memory_Files(const Virtual_Time& time) : time_(time) { Make_Folder(std::string(program_folder)); }

std::string Memory_Files::Full_Path(std::string_view name) {
  if (name.find(':') != std::string_view::npos) return Tidy(name);
  return Tidy(std::string(program_folder) + "\\" + std::string(name));
}

const Memory_Files::Entry* Memory_Files::Find(std::string_view path) const {
  const auto found = entries_.find(Key_Of(path));
  return found == entries_.end() ? nullptr : &found->second;
}

Memory_Files::Entry* Memory_Files::Find(std::string_view path) {
  return const_cast<Entry*>(std::as_const(*this).Find(path));
}

/// Throws the error that says why a path can't be opened: error 76 for a missing folder, 75 for a folder in its place.
void Memory_Files::Check_Place(const std::string& path) const {
  const Entry* const folder = Find(Above(Tidy(path)));
  if (folder == nullptr || !folder->Is_Folder) throw Run_Error(Error_Number::Path_Not_Found);
  const Entry* const there = Find(path);
  if (there != nullptr && there->Is_Folder) throw Run_Error(Error_Number::Path_File_Access);
}

void Memory_Files::Check_Changeable(const std::string& path) const {
  Check_Place(path);
  const Entry* const there = Find(path);
  if (there != nullptr && there->Read_Only) throw Run_Error(Error_Number::Path_File_Access);
  if (there != nullptr && there->Writers > 0) throw Run_Error(Error_Number::Permission_Denied);
}

void Memory_Files::Read_Whole(const std::string& path, std::string& buffer) {
  Check_Place(path);
  const Entry* const file = Find(path);
  if (file == nullptr) throw Run_Error(Error_Number::File_Not_Found);
  if (file->Locked) throw Run_Error(Error_Number::Permission_Denied);
  buffer = file->Bytes;
}

Memory_Files::Entry& Memory_Files::Make_File(const std::string& path) {
  const std::string plain = Without_Dots(Tidy(path));
  Entry& file = entries_[Folded(plain)];
  if (file.Name.empty()) file.Name = Last_Name(plain);
  file.Bytes.clear();
  file.Changed = time_.Now();
  return file;
}

std::unique_ptr<basic::Output_File> Memory_Files::Create(const std::string& path) {
  Check_Writing(path);
  Make_File(path);
  return std::make_unique<Writer>(*this, Key_Of(path));
}

bool Memory_Files::File_Exists(const std::string& path) {
  const Entry* const there = Find(path);
  return there != nullptr && !there->Is_Folder;
}

bool Memory_Files::Folder_Exists(const std::string& path) { return Find(path) != nullptr; }

std::vector<Memory_Files::Listed> Memory_Files::List(const std::string& folder) const {
  const Entry* const there = Find(folder);
  if (there == nullptr || !there->Is_Folder) throw Run_Error(Error_Number::Path_Not_Found);
  const std::string above = Key_Of(folder);
  std::vector<Listed> listed;
  for (const auto& [key, entry] : entries_)
    if (Above(key) == above) listed.push_back({entry.Name, entry.Is_Folder});
  return listed;
}

std::vector<std::string> Memory_Files::File_Names(const std::string& folder) { return Names(folder, false); }

std::vector<std::string> Memory_Files::Folder_Names(const std::string& folder) { return Names(folder, true); }

std::vector<std::string> Memory_Files::Names(const std::string& folder, bool of_folders) const {
  std::vector<std::string> names;
  for (Listed& listed : List(folder))
    if (listed.Is_Folder == of_folders) names.push_back(std::move(listed.Name));
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return Folded(a) < Folded(b); });
  return names;
}

void Memory_Files::Check_Writing(const std::string& path) {
  Check_Changeable(path);
  const Entry* const there = Find(path);
  if (there != nullptr && there->Hidden) throw Run_Error(Error_Number::Path_File_Access);
}

void Memory_Files::Allow_Writing(const std::string& path) {
  if (!File_Exists(path)) return;
  Entry& file = *Find(path);
  file.Read_Only = false;
  file.Hidden = false;
}

void Memory_Files::Bring_To_Disk(const std::string& path) {
  Check_Changeable(path);
  if (!File_Exists(path)) throw Run_Error(Error_Number::File_Not_Found);
}

bool Memory_Files::Move_Over(const std::string& from, const std::string& to) {
  Move(from, to);
  return true;
}

void Memory_Files::Rename(const std::string& from, const std::string& to) {
  if (Folder_Exists(to)) throw Run_Error(Error_Number::Path_File_Access);
  Move(from, to);
}

void Memory_Files::Move(const std::string& from, const std::string& to) {
  Check_Changeable(from);
  Check_Changeable(to);
  const Entry* const source = Find(from);
  if (source == nullptr) throw Run_Error(Error_Number::File_Not_Found);
  Entry moved = *source;
  moved.Name = Last_Name(Tidy(to));
  entries_.erase(Key_Of(from));
  entries_[Key_Of(to)] = std::move(moved);
}

bool Memory_Files::Full(const std::string& key) const {
  const std::string beside = Folded(Name_Beside(""));
  const bool of_another = key.ends_with(beside);
  const auto found = entries_.find(of_another ? key.substr(0, key.size() - beside.size()) : key);
  return found != entries_.end() && found->second.Full;
}

void Memory_Files::Delete(const std::string& path) {
  Check_Changeable(path);
  if (entries_.erase(Key_Of(path)) == 0) throw Run_Error(Error_Number::File_Not_Found);
}

void Memory_Files::Copy(const std::string& from, const std::string& to) {
  Check_Place(from);
  const Entry* const source = Find(from);
  if (source == nullptr) throw Run_Error(Error_Number::File_Not_Found);
  if (Key_Of(from) == Key_Of(to)) throw Run_Error(Error_Number::Permission_Denied);
  Check_Writing(to);
  const Entry* const target = Find(to);
  if (target != nullptr && target->Full && source->Bytes.size() > target->Room) {
    entries_.erase(Key_Of(to));
    throw Run_Error(Error_Number::Disk_Full);
  }
  if (target == nullptr && !source->Bytes.empty() && Full(Key_Of(to))) throw Run_Error(Error_Number::Disk_Full);
  Entry& copy = Make_File(to);
  copy.Bytes = source->Bytes;
  copy.Changed = source->Changed;
}

std::string Memory_Files::Program_Folder() { return std::string(program_folder); }

std::string Memory_Files::Program_Path() { return Full_Path(program_name); }

void Memory_Files::Put(const std::string& path, std::string_view bytes) {
  const Entry* const there = Find(path);
  if (there != nullptr && there->Is_Folder) {
    if (!List(path).empty()) throw Run_Error(Error_Number::Path_File_Access);
    entries_.erase(Key_Of(path));
  }
  Make_Folder(std::string(Above(Tidy(path))));
  Entry& file = Make_File(path);
  file.Bytes = bytes;
  file.Full = false;
  file.Locked = false;
  file.Read_Only = false;
  file.Hidden = false;
}

std::optional<std::string> Memory_Files::Bytes(const std::string& path) const {
  const Entry* const there = Find(path);
  if (there == nullptr || there->Is_Folder) return std::nullopt;
  return there->Bytes;
}

basic::Moment Memory_Files::Last_Change(const std::string& path) {
  const Entry* const there = Find(path);
  if (there == nullptr) throw Run_Error(Error_Number::File_Not_Found);
  return there->Changed;
}

void Memory_Files::Make_Folder(const std::string& path) {
  const std::string plain = Without_Dots(Tidy(path));
  if (plain.empty()) return;
  const Entry* const there = Find(plain);
  if (there != nullptr && !there->Is_Folder) throw Run_Error(Error_Number::Path_File_Access);
  if (there != nullptr) return;
  Make_Folder(std::string(Above(plain)));
  Entry& folder = entries_[Folded(plain)];
  folder.Name = Last_Name(plain);
  folder.Is_Folder = true;
  folder.Changed = time_.Now();
}

void Memory_Files::Remove(const std::string& path) {
  const std::string key = Key_Of(path);
  const std::string below = key + "\\";
  std::erase_if(entries_, [&](const auto& item) { return item.first == key || item.first.starts_with(below); });
}

void Memory_Files::Block(const std::string& path) {
  Remove(path);
  Make_Folder(path);
}

void Memory_Files::Fill_Up(const std::string& path) {
  if (!File_Exists(path)) Put(path, "");
  Entry& file = *Find(path);
  file.Full = true;
  file.Room = file.Bytes.size();
}

}  // namespace memory
