#include "platform/files.h"

namespace platform {

namespace {

// No user gives a file one of these names: what bears it is ours to write over and to take away.

/// The new file from the moment on when all of it is on the disk. Whatever else is there then, it belongs at the path.
std::string Whole_Name(const std::string& path) { return path + ".~whole"; }

/// Where the old file is for the moment between two renamings, where it can't be replaced by one.
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

/// Whether a power cut has left what belongs at the path under another name.
bool Is_Left(Files& files, const std::string& path) {
  if (files.File_Exists(Whole_Name(path))) return true;
  return !files.File_Exists(path) && files.File_Exists(Old_Name(path));
}

/// Runs `work`. Returns false, with nothing changed, if that fails for a file that another program holds.
template <class Work>
bool Unless_Held(Work&& work) {
  try {
    return work();
  } catch (const basic::Run_Error& failure) {
    if (failure.Number() != static_cast<int>(basic::Error_Number::Permission_Denied)) throw;
    return false;
  }
}

/// Writes what the whole new file holds into the old one; where there is no room for that the old bytes come back, and
/// error 61 is thrown. As long as the file has neither, `torn` is true, and the new one must stay.
void Write_Into(Files& files, const std::string& path, bool& torn) {
  const std::string whole = Whole_Name(path);
  std::string bytes, old;
  files.Read_Whole(whole, bytes);
  files.Read_Whole(path, old);
  std::unique_ptr<basic::Output_File> file = files.Create(path);
  torn = true;
  const bool room = file->Write(bytes) == bytes.size();
  if (!room) {
    file->Cut(0);
    if (file->Write(old) < old.size()) throw basic::Run_Error(basic::Error_Number::Disk_Full);
  }
  file.reset();
  files.Bring_To_Disk(path);
  torn = false;
  if (!room) throw basic::Run_Error(basic::Error_Number::Disk_Full);
  Delete_If_There(files, whole);
}

/// The whole new file takes the place by two renamings, between which the old one has its second name. Returns false,
/// with nothing changed, if another program keeps the old one from that. After a failure the old one has one of its
/// two names.
bool Rename_Over(Files& files, const std::string& path) {
  const std::string whole = Whole_Name(path), old = Old_Name(path);
  const bool replaces = files.File_Exists(path);
  if (replaces) {
    if (files.File_Exists(old)) Delete_Own(files, old);
    const auto rename = [&] {
      files.Rename(path, old);
      return true;
    };
    if (!Unless_Held(rename)) return false;
  }
  try {
    files.Rename(whole, path);
  } catch (const basic::Run_Error&) {
    if (replaces) files.Rename(old, path);
    throw;
  }
  Delete_If_There(files, old);
  return true;
}

/// The whole new file takes the place of the old one or of none, in the best way that there is. After a failure the new
/// one is there under its name, and the old one under one of its own, as it was unless it is torn.
void Take_Place(Files& files, const std::string& path, bool& torn) {
  if (Unless_Held([&] { return files.Move_Over(Whole_Name(path), path); })) return;
  if (!Rename_Over(files, path)) Write_Into(files, path, torn);
}

/// Brings a file to the disk, and has it take the place under the name that tells so. After a failure it has its own name
/// again if that can be had, and need not stay.
void Replace_By(Files& files, const std::string& from, const std::string& path) {
  const std::string whole = Whole_Name(path);
  files.Allow_Writing(from);
  files.Bring_To_Disk(from);
  files.Rename(from, whole);
  bool torn = false;
  try {
    files.Bring_To_Disk(whole);  // its name too
    Take_Place(files, path, torn);
  } catch (const basic::Run_Error&) {
    if (!torn) files.Rename(whole, from);
    throw;
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
    Or_Nothing_New(files_, path_, [this] { Replace_By(files_, Files::Name_Beside(path_), path_); });
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
  Refuse_If_Left(path);
  Check_Writing(path);
  return std::make_unique<Replacement>(*this, path);
}

void Files::Replace(const std::string& from, const std::string& to) {
  Refuse_If_Left(to);
  Replace_By(*this, from, to);
}

void Files::Copy_Over(const std::string& from, const std::string& to) {
  Refuse_If_Left(to);
  Check_Writing(to);
  const std::string beside = Name_Beside(to);
  Or_Nothing_New(*this, to, [&] {
    Allow_Writing(beside);
    Copy(from, beside);
    Replace_By(*this, beside, to);
  });
}

void Files::Refuse_If_Left(const std::string& path) {
  if (!Is_Left(*this, path)) return;
  Put_Back(path);
  throw basic::Run_Error(basic::Error_Number::Path_File_Access);
}

bool Files::Put_Back(const std::string& path) {
  try {
    bool torn = false;
    if (File_Exists(Whole_Name(path))) Take_Place(*this, path, torn);
    else if (Is_Left(*this, path)) Rename(Old_Name(path), path);
    return !Is_Left(*this, path);
  } catch (const basic::Run_Error&) {
    return false;  // the file is there under its other name, and the next start tries again
  }
}

void Files::Recover(const std::string& path) {
  if (!Put_Back(path)) return;
  if (File_Exists(path)) Delete_If_There(*this, Old_Name(path));
  Delete_If_There(*this, Name_Beside(path));
}

}  // namespace platform
