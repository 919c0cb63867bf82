// A press that is held on a day box shows the whole event of the day in a balloon.
#pragma once

#include "calendar/desk.h"
#include "platform/event_loop.h"
#include "tooltips/balloon_tooltip.h"

namespace calendar {

class Box_Hold {
 public:
  Box_Hold(Desk& desk, events::Event_File& event_file, tooltips::Balloons& balloons, platform::Waits& waits,
           const settings::Settings& settings, state::Calendar_State& calendar);

  /// Waits 0.3 seconds while events are served, then shows the balloon unless the button was released meanwhile. Does
  /// nothing for a box without an event, or if the setting doesn't want balloons.
  void Press(basic::Int16 index);

  void Release() { calendar_.Mouse_Released = true; }

 private:
  Desk& desk_;
  events::Event_File& event_file_;
  tooltips::Balloons& balloons_;
  platform::Waits& waits_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
