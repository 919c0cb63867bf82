// Makes the calendar a part of the desktop: its window becomes a child of the shell's, and the icons' text loses its
// background. Failures are silent; without the shell's windows the calendar stays an ordinary window.
#pragma once

#include <functional>

#include "platform/desktop_shell.h"
#include "presentation/main_frm.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace presentation {

class Desktop_Embedding {
 public:
  Desktop_Embedding(platform::Desktop_Shell& shell, Main_Frm& main_frm, const settings::Settings& settings,
                    state::Calendar_State& calendar, std::function<void()> show_splash);

  /// Called once, at the start: finds the shell's windows, shows the splash if the desktop exists and the setting wants
  /// it, reads the two colours of the icons' text and makes the calendar a child of the desktop's top window. Stops at
  /// the first window that is missing.
  void No_ShowDesktop_and_IconColours();

  /// Does nothing; the tick does the work.
  void Set_Transparent_Icon_Stuff() {}

  /// Called on each tick: if the setting wants it, removes the background of the icons' text again if it has one.
  void Keep_Desktop_Text_Clear();

 private:
  platform::Desktop_Shell& shell_;
  Main_Frm& main_frm_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
  const std::function<void()> show_splash_;
  platform::Window_Handle progman_hwnd_ = 0;
  platform::Window_Handle defview_hwnd_ = 0;
  platform::Window_Handle iconlist_hwnd_ = 0;
};

}  // namespace presentation
