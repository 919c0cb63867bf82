#include "calendar/date_watch.h"

#include "basic/date_pattern.h"

namespace calendar {

namespace {

constexpr int tick_interval = 100;  // milliseconds

}  // namespace

Date_Watch::Date_Watch(toolkit::Backend& backend, Desk& desk, presentation::Desktop_Embedding& embedding, Dates& dates)
    : Dectect_Date_Timer(backend, "Dectect_Date_Timer", tick_interval), desk_(desk), embedding_(embedding),
      dates_(dates) {
  Dectect_Date_Timer.On_Tick = [this] { Tick(); };
}

void Date_Watch::Set_Last_Day_Key() { last_day_key_ = Present_Day_Key(); }

void Date_Watch::Tick() {
  desk_.Follow_Active_State();
  embedding_.Keep_Desktop_Text_Clear();
  desk_.Follow_Idle_Time();
  desk_.Follow_Work_Area();
  desk_.Write_Title();
  if (Present_Day_Key() == last_day_key_) return;
  // Before anything that can show a message, which lets further ticks in: the day begins once.
  last_day_key_ = day_key_;
  desk_.Begin_New_Day();
}

const std::string& Date_Watch::Present_Day_Key() {
  day_key_.clear();
  basic::Append_Date(day_key_, dates_.Now(), "d:m:yyyy", dates_.Words());
  return day_key_;
}

}  // namespace calendar
