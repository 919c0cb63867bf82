#include "calendar/spoken_month.h"

#include "basic/text.h"

namespace calendar {

Spoken_Month::Spoken_Month(presentation::Main_Frm& main_frm, const Month_Grid& grid, const Dates& dates,
                           const settings::Settings& settings)
    : main_frm_(main_frm), grid_(grid), dates_(dates), settings_(settings) {
  for (int i = 0; i < presentation::box_count; ++i) main_frm.Box_Lbl[i].Accessible_Name = [this, i] { return Day(i); };
  for (int i = 0; i < presentation::days_of_week; ++i)
    main_frm.Day_Lbl[i].Accessible_Name = [this, i] { return Weekday(i); };
  main_frm.Prev_Month_Lbl.Call_It("Previous month");
  main_frm.Next_Month_Lbl.Call_It("Next month");
  main_frm.Window.Accessible_Name = [] { return std::string("Meridex"); };
}

std::string Spoken_Month::Day(int box) const {
  if (main_frm_.Box_Lbl[box].Caption == "") return {};
  const std::int32_t from_today = grid_.Days_From_Today(box);
  std::string spoken;
  dates_.Append_Long_Date(spoken, dates_.Present_Day() + from_today);
  if (from_today == 0) spoken += ", today";
  const std::string event = main_frm_.Box(box).Whole_Event();
  if (!event.empty()) spoken += ", " + basic::Single_Ampersands(event);
  return spoken;
}

std::string Spoken_Month::Weekday(int column) const {
  return dates_.Words().Weekday_Name(basic::Weekday_At(column + 1, dates_.First_Day_Of_Week(settings_)));
}

}  // namespace calendar
