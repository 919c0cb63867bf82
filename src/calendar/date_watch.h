// The calendar's tick, ten times a second: it looks after the window's active state, the icons' text, the idle time,
// the work area and the title, and starts each new day.
#pragma once

#include "calendar/desk.h"
#include "presentation/desktop_embedding.h"
#include "toolkit/timer.h"

namespace calendar {

class Date_Watch {
 public:
  Date_Watch(toolkit::Backend& backend, Desk& desk, presentation::Desktop_Embedding& embedding, Dates& dates);

  toolkit::Timer Dectect_Date_Timer;

  /// Remembers the present day as the last one seen. Called once, at the start.
  void Set_Last_Day_Key();

 private:
  void Tick();

  Desk& desk_;
  presentation::Desktop_Embedding& embedding_;
  Dates& dates_;
  basic::Serial_Day last_day_key_ = 0;
};

}  // namespace calendar
