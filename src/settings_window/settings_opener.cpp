#include "settings_window/settings_opener.h"

namespace settings_window {

Settings_Opener::Settings_Opener(toolkit::Backend& backend, const platform::System& system, const Program_Parts& parts)
    : backend_(backend), system_(system), parts_(parts) {}

void Settings_Opener::Show() {
  if (windows_.empty() || !windows_.back()->Window.Loaded()) {
    Drop_Closed();
    windows_.push_back(std::make_unique<Settings_Frm>(backend_, system_, parts_));
  }
  toolkit::Form& window = windows_.back()->Window;
  window.Load();
  if (!window.Loaded()) return;
  parts_.Calendar.Settings_Visible = true;
  window.Show();
}

void Settings_Opener::Unload() {
  if (!windows_.empty()) windows_.back()->Window.Unload();
}

void Settings_Opener::Drop_Closed() {
  std::erase_if(windows_, [](const auto& window) { return !window->Window.Loaded() && !window->Waiting(); });
}

}  // namespace settings_window
