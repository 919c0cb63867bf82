#include "bench/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {

namespace {

using basic::Error_Number;
using basic::Run_Error;

/// An open file; it is closed when it goes.
class Descriptor {
 public:
  explicit Descriptor(const std::string& path) : number_(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (number_ < 0) throw Run_Error(Error_Number::File_Not_Found);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(number_); }

  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace

std::string Posix_Files::Real_Path(const std::string& path) const {
  return folder_ + "/" + path.substr(path.rfind('\\') + 1);
}

void Posix_Files::Read_Whole(const std::string& path, std::string& buffer) {
  const Descriptor file(Real_Path(path));
  struct stat about {};
  if (fstat(file.Number(), &about) != 0) throw Run_Error(Error_Number::Path_File_Access);
  // The buffer comes back with the size that it had, so nothing of it is cleared first.
  buffer.resize(static_cast<std::size_t>(about.st_size));
  const ssize_t got = read(file.Number(), buffer.data(), buffer.size());
  if (got != about.st_size) throw Run_Error(Error_Number::Device_Io_Error);
}

// The measurements change no file.
std::unique_ptr<basic::Output_File> Posix_Files::Create(const std::string&) {
  throw Run_Error(Error_Number::Path_File_Access);
}

void Posix_Files::Check_Writing(const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

void Posix_Files::Allow_Writing(const std::string&) {}

bool Posix_Files::Move_Over(const std::string&, const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

void Posix_Files::Rename(const std::string&, const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

void Posix_Files::Delete(const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

void Posix_Files::Copy(const std::string&, const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

void Posix_Files::Bring_To_Disk(const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

basic::Moment Posix_Files::Last_Change(const std::string&) { throw Run_Error(Error_Number::Path_File_Access); }

bool Posix_Files::File_Exists(const std::string& path) {
  struct stat about {};
  return stat(Real_Path(path).c_str(), &about) == 0 && S_ISREG(about.st_mode);
}

bool Posix_Files::Folder_Exists(const std::string& path) { return access(Real_Path(path).c_str(), F_OK) == 0; }

std::vector<std::string> Posix_Files::File_Names(const std::string&) { return {}; }

std::vector<std::string> Posix_Files::Folder_Names(const std::string&) { return {}; }

}  // namespace bench
