// The preview of a pack: the twelve months on the real desktop, three seconds each, with the calendar as the tabs would have
// it. It saves nothing and puts everything back.
#pragma once

#include <optional>
#include <string>

#include "calendar/date_watch.h"
#include "platform/event_loop.h"
#include "settings_window/wallpaper_tab.h"

namespace settings_window {

class Twelve_Months {
 public:
  Twelve_Months(Wallpaper_Tab& tab, calendar::Desk& desk, calendar::Date_Watch& date_watch,
                presentation::Main_Frm& main_frm, platform::Waits& waits, settings::Settings& settings);

  /// The click of Preview_Btn. Throws error 13 where the desktop's display mode is no number, and where a month of the pack
  /// can't be read.
  void Play();

  /// Gives the desktop its own picture back if a preview has taken it, as when the program ends in the midst of one.
  void Put_Picture_Back();

  /// While it plays, what it works on must stay.
  [[nodiscard]] bool Playing() const { return playing_; }

 private:
  void Set_Aside();
  void Take_Up_Again();
  void Take_From_Tabs();
  void Show_Months();
  void Show_Month(int month);
  void Put_Calendar_Back();
  [[nodiscard]] bool Windows_Are_There() const;

  Wallpaper_Tab& tab_;
  calendar::Desk& desk_;
  calendar::Date_Watch& date_watch_;
  presentation::Main_Frm& main_frm_;
  platform::Waits& waits_;
  settings::Settings& settings_;
  bool playing_ = false;

  /// What was on the desktop before a preview, and how.
  struct Desktop_Picture {
    std::string Path;
    basic::Int16 Display_Mode;
  };
  std::optional<Desktop_Picture> picture_before_;
};

}  // namespace settings_window
