#include "calendar/date_watch.h"

#include "toolkit/input.h"

namespace calendar {

namespace {

constexpr int tick_interval = 100;  // milliseconds
constexpr int ticks_between_looks = 10;

}  // namespace

Date_Watch::Date_Watch(toolkit::Backend& backend, Desk& desk, presentation::Desktop_Embedding& embedding, Dates& dates,
                       const settings::Desktop_Mode& desktop_mode)
    : Dectect_Date_Timer(backend, "Dectect_Date_Timer", tick_interval), input_(backend.Input), desk_(desk),
      embedding_(embedding), dates_(dates), desktop_mode_(desktop_mode) {
  Dectect_Date_Timer.On_Tick = [this] { Tick(); };
}

void Date_Watch::Set_Last_Day_Key() { last_day_key_ = dates_.Present_Day(); }

void Date_Watch::Tick() {
  desk_.Follow_Active_State();
  Keep_On_Desktop();
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

/// Asks the system once a second at most: the shell's end and start are rare. A box or a menu that is open belongs to the
/// calendar's window, and a drag goes by its place; the move waits for their end.
void Date_Watch::Keep_On_Desktop() {
  if (!desktop_mode_.Modern() || input_.User_Is_Busy() || ++ticks_since_look_ < ticks_between_looks) return;
  ticks_since_look_ = 0;
  if (embedding_.Embed_Again()) desk_.Recolour(Colour_Part::Title_By_Activity);
}

}  // namespace calendar
