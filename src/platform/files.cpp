#include "platform/files.h"

namespace platform {

namespace {

// No user gives a file the name of this or of the one beside: what bears it is ours to write over and to take away.

/// Where the old file is for the moment between two renamings, on systems that can't replace it by one.
std::string Old_Name(const std::string& path) { return path + ".~bak"; }

/// A copy of a file that may not be written is one of the same kind. What a power cut has left of it must go all the
/// same.
void Delete_Own(Files& files, const std::string& path) {
  files.Allow_Writing(path);
  files.Delete(path);
}

/// What can't be taken away does no harm: the next replacement tries again.
void Delete_If_There(Files& files, const std::string& path) noexcept {
  try {
    if (files.File_Exists(path)) Delete_Own(files, path);
  } catch (const basic::Run_Error&) {
    return;
  }
}

std::unique_ptr<basic::Output_File> Create_Own(Files& files, const std::string& path) {
  files.Allow_Writing(path);
  return files.Create(path);
}

/// A new file has come to its end if its last line has one: each record ends so.
bool Is_Whole(Files& files, const std::string& path) {
  std::string bytes;
  files.Read_Whole(path, bytes);
  return bytes.ends_with("\r\n");
}

/// The name under which a power cut has left what belongs at the path; empty if it has its own, or nothing whole is there.
std::string Left_Name(Files& files, const std::string& path) {
  if (files.File_Exists(path)) return {};
  const std::string old = Old_Name(path), beside = Files::Name_Beside(path);
  if (files.File_Exists(old)) return old;
  return files.File_Exists(beside) && Is_Whole(files, beside) ? beside : std::string();
}

/// A file that has only another name can't have been read: what would take its place has nothing of what it holds. It
/// gets its name back, and is there for the next reading.
void Check_Replacing(Files& files, const std::string& path) {
  if (!Left_Name(files, path).empty()) {
    files.Put_Back(path);
    throw basic::Run_Error(basic::Error_Number::Path_File_Access);
  }
  files.Check_Writing(path);
}

/// By two renamings, between which only the old file's second name is there.
void Rename_Over(Files& files, const std::string& from, const std::string& to) {
  if (!files.File_Exists(to)) return files.Rename(from, to);
  const std::string old = Old_Name(to);
  if (files.File_Exists(old)) Delete_Own(files, old);
  files.Rename(to, old);
  try {
    files.Rename(from, to);
  } catch (const basic::Run_Error&) {
    files.Rename(old, to);
    throw;
  }
  Delete_If_There(files, old);
}

/// Writes what the new file holds into the old one, as if there had been no new one: it makes room first.
void Write_Into(Files& files, const std::string& path) {
  const std::string beside = Files::Name_Beside(path);
  std::string bytes;
  files.Read_Whole(beside, bytes);
  const std::unique_ptr<basic::Output_File> file = files.Create(path);
  Delete_If_There(files, beside);
  if (file->Write(bytes) < bytes.size()) throw basic::Run_Error(basic::Error_Number::Disk_Full);
}

/// The new file beside the path takes its place. After any failure but that of a file that another program holds, such as
/// a disk's, the old file isn't touched.
void Take_Place(Files& files, const std::string& path) {
  const std::string beside = Files::Name_Beside(path);
  files.Allow_Writing(beside);
  try {
    if (!files.Move_Over(beside, path)) Rename_Over(files, beside, path);
  } catch (const basic::Run_Error& failure) {
    if (failure.Number() != static_cast<int>(basic::Error_Number::Permission_Denied)) throw;
    Write_Into(files, path);
  }
}

/// Runs `work`; takes the new file away if that fails.
template <class Work>
void Or_Nothing_New(Files& files, const std::string& path, Work&& work) {
  try {
    work();
  } catch (const basic::Run_Error&) {
    Delete_If_There(files, Files::Name_Beside(path));
    throw;
  }
}

/// A new file that takes the path's place at its end. One that fails is taken away at once: the program may go on for
/// days.
class Replacement final : public basic::Output_File {
 public:
  Replacement(Files& files, const std::string& path)
      : files_(files), path_(path), file_(Create_Own(files, Files::Name_Beside(path))) {}
  ~Replacement() override { Give_Up(); }

  std::size_t Write(std::string_view bytes) override {
    const std::size_t room = file_ != nullptr ? file_->Write(bytes) : 0;
    if (room < bytes.size()) Give_Up();
    return room;
  }

  void Cut(std::size_t size) override {
    if (file_ != nullptr) file_->Cut(size);
  }

  void Finish() override {
    if (file_ == nullptr) throw basic::Run_Error(basic::Error_Number::Disk_Full);
    file_.reset();
    Or_Nothing_New(files_, path_, [this] { Take_Place(files_, path_); });
  }

 private:
  void Give_Up() noexcept {
    if (file_ == nullptr) return;
    file_.reset();
    Delete_If_There(files_, Files::Name_Beside(path_));
  }

  Files& files_;
  const std::string path_;
  std::unique_ptr<basic::Output_File> file_;  // nullptr: finished or given up
};

}  // namespace

std::string Files::Name_Beside(const std::string& path) { return path + ".~new"; }

std::unique_ptr<basic::Output_File> Files::Create_Beside(const std::string& path) {
  Check_Replacing(*this, path);
  return std::make_unique<Replacement>(*this, path);
}

void Files::Replace(const std::string& from, const std::string& to) {
  const std::string beside = Name_Beside(to);
  Delete_If_There(*this, beside);
  Allow_Writing(from);
  Rename(from, beside);
  try {
    Take_Place(*this, to);
  } catch (const basic::Run_Error&) {
    if (File_Exists(beside)) Rename(beside, from);
    throw;
  }
}

void Files::Copy_Over(const std::string& from, const std::string& to) {
  Check_Replacing(*this, to);
  Or_Nothing_New(*this, to, [&] {
    Allow_Writing(Name_Beside(to));
    Copy(from, Name_Beside(to));
    Take_Place(*this, to);
  });
}

bool Files::Put_Back(const std::string& path) {
  try {
    const std::string left = Left_Name(*this, path);
    if (left.empty()) return true;
    if (left == Name_Beside(path)) Allow_Writing(left);
    Rename(left, path);
    return true;
  } catch (const basic::Run_Error&) {
    return false;  // the file is there under its other name, and the next start tries again
  }
}

void Files::Recover(const std::string& path) {
  if (!Put_Back(path)) return;
  Delete_If_There(*this, Old_Name(path));
  Delete_If_There(*this, Name_Beside(path));
}

}  // namespace platform
