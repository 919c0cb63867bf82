// File dialogs that are answered by a list made up in advance, and remembered.
#pragma once

#include <deque>
#include <optional>
#include <utility>
#include <vector>

#include "memory/memory_loop.h"
#include "platform/file_dialog.h"
#include "toolkit/input.h"

namespace memory {

class Memory_File_Dialog : public platform::File_Dialog {
 public:
  Memory_File_Dialog(Memory_Loop& loop, toolkit::Input& input) : loop_(loop), input_(input) {}

  bool Show_Open(platform::File_Dialog_Record& record) override { return Show(record, false); }
  bool Show_Save(platform::File_Dialog_Record& record) override { return Show(record, true); }

  /// The full path for a dialog to come, nothing for one that is cancelled, as all are that come unprepared. The dialog
  /// stays open for `micros` first, with events being served.
  void Prepare(const std::optional<std::string>& path, std::int64_t micros = 0) { prepared_.push_back({path, micros}); }

  struct Shown {
    bool To_Save;
    std::string Title;
    std::string Filter;               ///< with "|" between its texts
    std::optional<std::string> Path;  ///< nothing: cancelled
  };

  /// The dialogs since the last call, in the order of showing.
  std::vector<Shown> Take_Shown() { return std::exchange(shown_, {}); }

 private:
  struct Prepared {
    std::optional<std::string> path;
    std::int64_t micros;
  };

  bool Show(platform::File_Dialog_Record& record, bool to_save);

  Memory_Loop& loop_;
  toolkit::Input& input_;
  std::deque<Prepared> prepared_;
  std::vector<Shown> shown_;
};

}  // namespace memory
