#include "win32/disk_files.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "win32/automation_dates.h"
#include "win32/handle.h"
#include "win32/program_path.h"

namespace win32 {

namespace {

using basic::Error_Number;
using basic::Run_Error;

class Disk_Output final : public basic::Output_File {
 public:
  explicit Disk_Output(Handle_Owner file) : file_(std::move(file)) {}

  std::size_t Write(std::string_view bytes) override {
    std::size_t done = 0;
    while (done < bytes.size()) {
      DWORD written = 0;
      const auto rest = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - done, largest_write));
      const bool whole = WriteFile(file_.Get(), bytes.data() + done, rest, &written, nullptr) != 0;
      done += written;
      if (!whole || written == 0) break;
    }
    return done;
  }

  void Cut(std::size_t size) override {
    SetFilePointer(file_.Get(), static_cast<LONG>(size), nullptr, FILE_BEGIN);
    SetEndOfFile(file_.Get());
  }

 private:
  static constexpr std::size_t largest_write = 0x40000000;

  Handle_Owner file_;
};

Handle_Owner Open(const std::string& path, DWORD access, DWORD sharing, DWORD how) {
  Handle_Owner file(Valid_Or_None(CreateFileA(path.c_str(), access, sharing, nullptr, how,
                                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr)));
  if (!file) Throw_File_Error();
  return file;
}

/// The pauses after which a file is tried again: a virus scanner looks into a file that has just been written, and
/// holds it for a moment.
constexpr DWORD pauses[] = {15, 30, 60, 100, 100};  // milliseconds

bool Held_By_Another() {
  const DWORD failure = GetLastError();
  return failure == ERROR_ACCESS_DENIED || failure == ERROR_SHARING_VIOLATION;
}

/// Calls `work` until it returns true, or fails for another reason than a file that is held. Returns what it returned
/// last.
template <class Work>
bool Patiently(Work&& work) {
  for (const DWORD pause : pauses) {
    if (work()) return true;
    if (!Held_By_Another()) return false;
    Sleep(pause);
  }
  return work();
}

/// What a flush answers where nothing can be held back, or none knows of it: so some servers do. There is no more to be
/// done.
bool Not_For_That_Disk() {
  const DWORD failure = GetLastError();
  return failure == ERROR_INVALID_FUNCTION || failure == ERROR_NOT_SUPPORTED;
}

DWORD Attributes(const std::string& path) { return GetFileAttributesA(path.c_str()); }

/// Throws the error of a move that has failed. A file that another program holds is refused as if it were read-only.
[[noreturn]] void Throw_Move_Error(const std::string& held) {
  const DWORD failure = GetLastError();
  const DWORD attributes = Attributes(held);
  const bool changeable =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) == 0;
  if (failure == ERROR_ACCESS_DENIED && changeable) throw Run_Error(Error_Number::Permission_Denied);
  SetLastError(failure);
  Throw_File_Error();
}

/// What keeps a file from being made anew. A hidden one can be opened and deleted.
constexpr DWORD marks_in_the_way = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

bool Marked(const std::string& path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & marks_in_the_way) != 0;
}

/// The system refuses such a file when it is created, but not always to an administrator, nor when it is opened.
void Refuse_If_Marked(const std::string& path) {
  if (Marked(path)) throw Run_Error(Error_Number::Path_File_Access);
}

/// The system's copy of a read-only file, such as one on a CD, is read-only too.
void Make_Writable(const std::string& path) {
  const DWORD attributes = Attributes(path);
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
    SetFileAttributesA(path.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

/// The files or the folders of a folder, which has itself and the one above among its folders.
std::vector<std::string> Names_In(const std::string& folder, bool of_folders) {
  WIN32_FIND_DATAA found;
  const Search_Owner search(Valid_Or_None(FindFirstFileA((folder + "\\*").c_str(), &found)));
  std::vector<std::string> names;
  if (!search) {
    // The root of a drive may be there and empty; any other folder holds itself.
    if (GetLastError() == ERROR_FILE_NOT_FOUND) return names;
    throw Run_Error(Error_Number::Path_Not_Found);
  }
  do {
    const bool is_folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (is_folder == of_folders) names.emplace_back(found.cFileName);
  } while (FindNextFileA(search.Get(), &found) != 0);
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return _stricmp(a.c_str(), b.c_str()) < 0; });
  return names;
}

}  // namespace

void Throw_File_Error() {
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_INVALID_NAME: throw Run_Error(Error_Number::File_Not_Found);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_PATHNAME: throw Run_Error(Error_Number::Path_Not_Found);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: throw Run_Error(Error_Number::Permission_Denied);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: throw Run_Error(Error_Number::Disk_Full);
    default: throw Run_Error(Error_Number::Path_File_Access);
  }
}

Disk_Files::Disk_Files() : path_(win32::Program_Path()) { folder_ = path_.substr(0, path_.rfind('\\')); }

void Disk_Files::Read_Whole(const std::string& path, std::string& buffer) {
  const Handle_Owner file = Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  const DWORD size = GetFileSize(file.Get(), nullptr);
  if (size > static_cast<DWORD>(std::numeric_limits<std::int32_t>::max()))
    throw Run_Error(Error_Number::Path_File_Access);
  // The buffer keeps its size from one reading to the next, so only what it grows by has to be cleared.
  buffer.resize(size);
  DWORD read = 0;
  if (ReadFile(file.Get(), buffer.data(), size, &read, nullptr) == 0) Throw_File_Error();
  if (read < size) throw Run_Error(Error_Number::Path_File_Access);  // it was cut meanwhile
}

std::unique_ptr<basic::Output_File> Disk_Files::Create(const std::string& path) {
  Refuse_If_Marked(path);
  return std::make_unique<Disk_Output>(Open(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS));
}

// Asks for the attributes of the path: a search would take "*" and "?" in it as wildcards.
bool Disk_Files::File_Exists(const std::string& path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Disk_Files::Folder_Exists(const std::string& path) { return Attributes(path) != INVALID_FILE_ATTRIBUTES; }

std::vector<std::string> Disk_Files::File_Names(const std::string& folder) { return Names_In(folder, false); }

std::vector<std::string> Disk_Files::Folder_Names(const std::string& folder) {
  std::vector<std::string> names = Names_In(folder, true);
  std::erase_if(names, [](const std::string& name) { return name == "." || name == ".."; });
  return names;
}

void Disk_Files::Check_Writing(const std::string& path) {
  if (!Folder_Exists(path)) return;
  Refuse_If_Marked(path);
  Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
}

void Disk_Files::Allow_Writing(const std::string& path) {
  if (Marked(path)) SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

void Disk_Files::Bring_To_Disk(const std::string& path) {
  Handle_Owner file;
  const bool opened = Patiently([&] {
    file.Reset(Valid_Or_None(CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
    return static_cast<bool>(file);
  });
  if (!opened) Throw_File_Error();
  if (FlushFileBuffers(file.Get()) == 0 && !Not_For_That_Disk()) Throw_File_Error();
}

bool Disk_Files::Move_Over(const std::string& from, const std::string& to) {
  // Windows 98 has the function, which does nothing there but fail.
  const auto move =
      Find_Function<BOOL WINAPI(const char*, const char*, DWORD)>(GetModuleHandleA("kernel32.dll"), "MoveFileExA");
  if (move == nullptr) return false;
  constexpr DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (Patiently([&] { return move(from.c_str(), to.c_str(), how) != 0; })) return true;
  if (GetLastError() == ERROR_CALL_NOT_IMPLEMENTED) return false;
  Throw_Move_Error(to);
}

void Disk_Files::Rename(const std::string& from, const std::string& to) {
  if (!Patiently([&] { return MoveFileA(from.c_str(), to.c_str()) != 0; })) Throw_Move_Error(from);
}

void Disk_Files::Delete(const std::string& path) {
  if (!Patiently([&] { return DeleteFileA(path.c_str()) != 0; })) Throw_File_Error();
}

void Disk_Files::Copy(const std::string& from, const std::string& to) {
  if (CopyFileA(from.c_str(), to.c_str(), FALSE) != 0) {
    Make_Writable(to);
    return;
  }
  const DWORD failure = GetLastError();
  // Not every system takes away what a full disk has left of a copy.
  if (failure == ERROR_DISK_FULL || failure == ERROR_HANDLE_DISK_FULL) DeleteFileA(to.c_str());
  SetLastError(failure);
  Throw_File_Error();
}

bool Disk_Files::Same_Path(const std::string& a, const std::string& b) {
  std::string lower_a = a, lower_b = b;
  CharLowerA(lower_a.data());
  CharLowerA(lower_b.data());
  return lower_a == lower_b;
}

basic::Moment Disk_Files::Last_Change(const std::string& path) { return Moment_Of_Last_Change(path); }

}  // namespace win32
