// What must hold of the settings window:
//
// - after Apply and OK the stored values are what its controls showed, but for the position where the pack gives it and
//   the pack's name where none is selected;
// - Cancel stores nothing but the tab;
// - the overview's lists, filled anew, hold the events of the file, and nothing else;
// - the statistics of a window that has just opened count the events of the file.
//
// Where a box or a prepared action came between, or the file couldn't be read, nothing is compared.
#pragma once

#include <map>
#include <string>

#include "watcher.h"

namespace monkey {

class Settings_Checks {
 public:
  explicit Settings_Checks(play::World& world) : world_(world) {}

  /// Around one action. `After` throws Failed. `lines` are the action's, `sound` says whether the file can be read.
  void Before();
  void After(const std::string& lines, const Brought_Up& brought, bool sound);

  /// How often the stored values, and the lists, were compared.
  [[nodiscard]] int Applied() const { return applied_; }
  [[nodiscard]] int Listed() const { return listed_; }

 private:
  using Values = std::map<std::string, std::string>;

  [[nodiscard]] Values Stored() const;
  [[nodiscard]] std::string Stored(const std::string& name) const;
  void Check_Applied() const;
  void Check_Ticks() const;
  void Check_Entries() const;
  void Check_Colours() const;
  void Check_Options() const;
  void Expect(const std::string& setting, const std::string& value, const std::string& control) const;
  void Check_Cancelled() const;
  void Check_Lists() const;
  void Check_Counts() const;

  play::World& world_;
  bool active_ = false;      // the window was, before the action
  bool mouse_held_ = false;  // a button was, on a control that gets the next press too
  Values shown_, stored_;
  std::map<std::string, int> entries_;  // of the lists, the place of what is selected
  int applied_ = 0, listed_ = 0;
};

}  // namespace monkey
