#include "platform/files.h"

namespace platform {

namespace {

// No user gives a file the name of this or of the one beside: what bears it is ours to write over and to take away.

/// Where the old file is for the moment between two renamings, on systems that can't replace it by one.
std::string Old_Name(const std::string& path) { return path + ".~bak"; }

/// What can't be taken away does no harm: the next replacement tries again.
void Delete_If_There(Files& files, const std::string& path) noexcept {
  try {
    if (files.File_Exists(path)) files.Delete(path);
  } catch (const basic::Run_Error&) {
    return;
  }
}

/// By two renamings, between which only the old file's second name is there.
void Rename_Over(Files& files, const std::string& from, const std::string& to) {
  if (!files.File_Exists(to)) return files.Rename(from, to);
  const std::string old = Old_Name(to);
  if (files.File_Exists(old)) files.Delete(old);
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

/// A new file that takes the path's place at its end. One that fails is taken away at once: the program may go on for days.
class Replacement final : public basic::Output_File {
 public:
  Replacement(Files& files, const std::string& path)
      : files_(files), path_(path), file_(files.Create(Files::Name_Beside(path))) {}
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
  Check_Writing(path);
  return std::make_unique<Replacement>(*this, path);
}

void Files::Replace(const std::string& from, const std::string& to) {
  if (!Move_Over(from, to)) Rename_Over(*this, from, to);
}

void Files::Copy_Over(const std::string& from, const std::string& to) {
  Check_Writing(to);
  Or_Nothing_New(*this, to, [&] {
    Copy(from, Name_Beside(to));
    Replace(Name_Beside(to), to);
  });
}

void Files::Recover(const std::string& path) {
  const std::string old = Old_Name(path);
  try {
    if (!File_Exists(path) && File_Exists(old)) Rename(old, path);
  } catch (const basic::Run_Error&) {
    return;  // the old file is there under its other name, and the next start tries again
  }
  Delete_If_There(*this, old);
  Delete_If_There(*this, Name_Beside(path));
}

}  // namespace platform
