// Keeps count of what the actions bring up: windows, message boxes, menus, file dialogs, starts and ends of the program.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "world.h"

namespace monkey {

/// What one action has brought up.
struct Brought_Up {
  std::vector<memory::Memory_Message_Box::Shown> boxes;
  std::vector<memory::Memory_File_Dialog::Shown> dialogs;
  std::optional<int> error;  ///< that has ended the program
  bool started = false;      ///< the program, anew
  bool refused = false;      ///< a gesture was
  bool nested = false;       ///< a prepared action may have run within the action
  std::int64_t micros = 0;   ///< of virtual time that have passed

  /// Whether a box had a text that begins so.
  [[nodiscard]] bool Box_Said(std::string_view beginning) const;
  /// Whether a file dialog had that title and was answered by a file.
  [[nodiscard]] bool Dialog_Got_File(std::string_view title) const;
};

class Watcher {
 public:
  explicit Watcher(play::World& world) : world_(world) {}

  /// What the player prints.
  void Hear(const std::string& line);

  /// Around one action.
  void Before();
  Brought_Up After(bool nested);

  /// What there was in all, as lines for the reader of the log.
  [[nodiscard]] std::string Told() const;

  /// The windows, tabs and other things that never came up, each with a blank before it.
  [[nodiscard]] std::string Missed() const;

 private:
  void Count_Windows();
  void Count_Tab();

  play::World& world_;
  std::optional<int> error_;
  bool refused_now_ = false;
  int starts_before_ = 0;
  std::int64_t elapsed_before_ = 0;
  std::set<platform::Window_Handle> seen_;
  std::map<std::string, int> windows_;
  std::string tab_;  // that the settings window shows
  std::map<std::string, int> tabs_;
  int starts_ = 0, boxes_ = 0, dialogs_ = 0, files_ = 0, menus_ = 0, refused_ = 0;
};

}  // namespace monkey
