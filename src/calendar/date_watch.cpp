#include "calendar/date_watch.h"

namespace calendar {

namespace {

constexpr int tick_interval = 100;  // milliseconds

}  // namespace

Date_Watch::Date_Watch(toolkit::Backend& backend, Desk& desk, presentation::Desktop_Embedding& embedding, Dates& dates)
    : Dectect_Date_Timer(backend, "Dectect_Date_Timer", tick_interval), desk_(desk), embedding_(embedding),
      dates_(dates) {
  Dectect_Date_Timer.On_Tick = [this] { Tick(); };
}

void Date_Watch::Set_Last_Day_Key() { last_day_key_ = dates_.Present_Day(); }

void Date_Watch::Tick() {
  desk_.Follow_Active_State();
  embedding_.Keep_Desktop_Text_Clear();
  desk_.Follow_Idle_Time();
  desk_.Follow_Work_Area();
  const basic::Moment now = dates_.Now();
  desk_.Keep_Title(now);
  if (now.Day == last_day_key_) return;
  // Set first: what follows may show a message box, under which the ticks go on, and the day must begin only once.
  last_day_key_ = now.Day;
  desk_.Begin_New_Day();
}

}  // namespace calendar
