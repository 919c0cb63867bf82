#include "calendar/month_view.h"

namespace calendar {

Month_View::Month_View(presentation::Arrangement& arrangement, Month_Grid& grid, Title_Text& title,
                       events::Event_File& event_file, Alerts& alerts, presentation::Colours& colours,
                       platform::Clock& clock, state::Calendar_State& calendar)
    : arrangement_(arrangement), grid_(grid), title_(title), event_file_(event_file), alerts_(alerts),
      colours_(colours), clock_(clock), calendar_(calendar) {}

void Month_View::Write_Title() { arrangement_.Which_Month_Lbl.Caption = title_.Get_Bar_Text(); }

void Month_View::Load_Dates() {
  alerts_.Take_Present_Day();
  event_file_.Load_Dates();
}

void Month_View::Refresh_Calendar() {
  Write_Title();
  if (!calendar_.Compact_On) Redraw_Grid();
}

void Month_View::Redraw_Grid() {
  grid_.Set_Day_Headers();
  grid_.Setup_Boxes(calendar_.View_Month, calendar_.View_Year);
  Load_Dates();
  colours_.Set_Colours();
  grid_.Mark_Today();
}

void Month_View::Previous_Month() {
  calendar_.View_Month -= 1;
  if (calendar_.View_Month < 1) {
    calendar_.View_Month = 12;
    calendar_.View_Year -= 1;
  }
  Refresh_Calendar();
}

void Month_View::Next_Month() {
  calendar_.View_Month += 1;
  if (calendar_.View_Month > 12) {
    calendar_.View_Month = 1;
    calendar_.View_Year += 1;
  }
  Refresh_Calendar();
}

void Month_View::Go_To_Present_Month() {
  const basic::Civil_Date today = basic::Civil_From_Serial(clock_.Now().Day);
  calendar_.View_Month = today.Month;
  calendar_.View_Year = today.Year;
}

}  // namespace calendar
