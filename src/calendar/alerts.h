// The alert: a message box on the day of an event, at most once a day.
#pragma once

#include "calendar/dates.h"
#include "events/event_line.h"
#include "platform/message_box.h"
#include "state/calendar_state.h"
#include "toolkit/form.h"

namespace calendar {

class Alerts {
 public:
  Alerts(Dates& dates, platform::Message_Box& message_box, toolkit::Form& main_frm, const settings::Settings& settings,
         state::Calendar_State& calendar);

  /// Notes the present day. Called before each reading of the event file, so that all its lines are tested for one day.
  void Take_Present_Day();

  /// Shows the alert if it is due for the event, and disables the calendar window until the user closes it. **Events
  /// are served meanwhile: ticks go on, and any handler may run.**
  void Test(const events::Event_Line& event);

 private:
  [[nodiscard]] bool Due(const events::Event_Line& event) const;

  Dates& dates_;
  platform::Message_Box& message_box_;
  toolkit::Form& main_frm_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
  basic::Serial_Day present_day_ = 0;
  basic::Civil_Date present_date_;
};

/// What the alert and the F1 key show of today's event.
std::string Today_Message(const Dates& dates, basic::Serial_Day today, std::string_view text);

}  // namespace calendar
