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
  /// it, reads the two colours of the icons' text and makes the calendar a child of the window that holds the icons.
  /// Stops at the first window that is missing, and at the first question that has no answer in ten seconds: at that
  /// moment the shell may be starting too.
  void No_ShowDesktop_and_IconColours();

  /// Whether the calendar is a part of the desktop at this moment: the shell's windows are there, the icons are still
  /// in the one that the calendar was moved to, and the calendar's window is the one that was moved.
  [[nodiscard]] bool Embedded() const;

  /// If it isn't: finds the shell's windows anew and makes the calendar a part of what is there, without the splash.
  /// Returns true if that was done, so that other colours may be due. May be called again and again, between two ticks:
  /// it costs a few questions to the system. A desktop that can't show the calendar isn't asked twice; one that failed to
  /// take it, as while the shell starts, is.
  bool Embed_Again();

  /// Does nothing; the tick does the work.
  void Set_Transparent_Icon_Stuff() {}

  /// Called on each tick: if the setting wants it, removes the background of the icons' text again if it has one. Icons
  /// that don't answer, here or to Embed_Again, hold the tick up for a fifth of a second; after the third time in a row
  /// they are left alone for five seconds.
  void Keep_Desktop_Text_Clear();

 private:
  bool Find_Icons(platform::Window_Handle progman);
  bool Learn_Colours(int patience);
  bool Enter_Desktop();
  bool Clear_Text();
  void Count_Misses(bool answered);

  platform::Desktop_Shell& shell_;
  Main_Frm& main_frm_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
  const std::function<void()> show_splash_;
  platform::Window_Handle icons_top_hwnd_ = 0;  // what holds the view: Progman, on newer systems maybe another window
  platform::Window_Handle defview_hwnd_ = 0;
  platform::Window_Handle iconlist_hwnd_ = 0;
  platform::Window_Handle embedded_ = 0;  // the calendar's window as it was moved; 0 if it wasn't
  platform::Window_Handle refused_ = 0;   // the window that couldn't show it
  int misses_ = 0;                        // how often in a row the icons gave no answer
  int ticks_left_alone_ = 0;              // how many more the icons aren't asked anything
};

}  // namespace presentation
