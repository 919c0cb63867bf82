// The calendar's tick, ten times a second: it looks after the window's active state, the icons' text, the idle time,
// the work area and the title, and starts each new day. With the user's consent to today's desktops it also brings the
// calendar back onto the desktop after the shell has been started again.
#pragma once

#include "calendar/desk.h"
#include "presentation/desktop_embedding.h"
#include "settings/desktop_mode.h"
#include "toolkit/timer.h"

namespace calendar {

class Date_Watch {
 public:
  Date_Watch(toolkit::Backend& backend, Desk& desk, presentation::Desktop_Embedding& embedding, Dates& dates,
             const settings::Desktop_Mode& desktop_mode);

  toolkit::Timer Dectect_Date_Timer;

  /// Remembers the present day as the last one seen. Called once, at the start.
  void Set_Last_Day_Key();

 private:
  void Tick();
  void Keep_On_Desktop();

  const toolkit::Input& input_;
  Desk& desk_;
  presentation::Desktop_Embedding& embedding_;
  Dates& dates_;
  const settings::Desktop_Mode& desktop_mode_;
  int ticks_since_look_ = 0;
  basic::Serial_Day last_day_key_ = 0;
};

}  // namespace calendar
