// Opens the settings window: a new one each time, unless it is open already.
#pragma once

#include <memory>
#include <vector>

#include "settings_window/settings_frm.h"

namespace settings_window {

class Settings_Opener {
 public:
  Settings_Opener(toolkit::Backend& backend, const platform::System& system, const Program_Parts& parts);

  /// Shows the window, and makes it active.
  void Show();

  /// Closes it if it is open.
  void Unload();

 private:
  /// A window can't go while one of its handlers runs, so those that have closed go when the next one opens.
  void Drop_Closed();

  toolkit::Backend& backend_;
  const platform::System system_;
  const Program_Parts parts_;
  std::vector<std::unique_ptr<Settings_Frm>> windows_;  // the newest last
};

}  // namespace settings_window
