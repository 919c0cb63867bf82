// What must hold of every window between two actions:
//
// - windows of the program's own kinds are open, of the editor and the settings at most one, and none when it has ended;
// - all of them take the user's input, and nothing is left of a box, a dialog or an hourglass;
// - what the calendar knows of its windows is so: the settings window, a balloon;
// - of a group of options one is on;
// - the focus of a window is on a control that can have it, if there is one;
// - a gesture that is refused changes nothing.
#pragma once

#include <string>

#include "watcher.h"

namespace monkey {

class Window_Checks {
 public:
  explicit Window_Checks(play::World& world) : world_(world) {}

  /// Around one action. `After` throws Failed.
  void Before();
  void After(const Brought_Up& brought, const std::string& lines) const;

 private:
  void Check_Open_Windows() const;
  void Check_Ended() const;
  void Check_Left_Behind() const;
  void Check_State() const;
  void Check_Window(const toolkit::Form& window) const;

  play::World& world_;
  std::string before_;
};

}  // namespace monkey
