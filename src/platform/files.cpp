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

bool Has_Old_Name_Only(Files& files, const std::string& path) {
  return !files.File_Exists(path) && files.File_Exists(Old_Name(path));
}

/// A file that has only its second name can't have been read: what would take its place has nothing of what it holds.
/// It gets its name back, and is there for the next reading.
void Check_Replacing(Files& files, const std::string& path) {
  if (Has_Old_Name_Only(files, path)) {
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
    Or_Nothing_New(files_, path_, [this] { files_.Replace(Files::Name_Beside(path_), path_); });
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
  Allow_Writing(from);
  if (!Move_Over(from, to)) Rename_Over(*this, from, to);
}

void Files::Copy_Over(const std::string& from, const std::string& to) {
  Check_Replacing(*this, to);
  Or_Nothing_New(*this, to, [&] {
    Allow_Writing(Name_Beside(to));
    Copy(from, Name_Beside(to));
    Replace(Name_Beside(to), to);
  });
}

bool Files::Put_Back(const std::string& path) {
  try {
    if (Has_Old_Name_Only(*this, path)) Rename(Old_Name(path), path);
    return true;
  } catch (const basic::Run_Error&) {
    return false;  // the old file is there under its other name, and the next start tries again
  }
}

void Files::Recover(const std::string& path) {
  if (!Put_Back(path)) return;
  Delete_If_There(*this, Old_Name(path));
  Delete_If_There(*this, Name_Beside(path));
}

}  // namespace platform
