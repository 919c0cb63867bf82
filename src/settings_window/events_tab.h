// The tab "Events": every event of the file in one list, or how many there are. One of two options chooses.
#pragma once

#include "settings_window/events_overview.h"
#include "settings_window/statistics.h"
#include "toolkit/option_button.h"

namespace settings_window {

class Events_Tab {
 public:
  Events_Tab(toolkit::Frame& page, calendar::Desk& desk, events::Event_File& event_file, calendar::Dates& dates,
             platform::Message_Box& message_box);

  toolkit::Frame Frame13;
  toolkit::Option_Button Overview_Opt, Stats_Opt;
  Events_Overview Overview;
  settings_window::Statistics Statistics;

  /// The load of the window: fills the list.
  void Load() { Overview.Load(); }

  /// The window has become active: counts the events.
  void Activate();

 private:
  void Show_Part(bool overview);
};

}  // namespace settings_window
