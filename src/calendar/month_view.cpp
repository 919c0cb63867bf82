#include "calendar/month_view.h"

namespace calendar {

Month_View::Month_View(Month_Grid& grid, Title_Text& title, events::Event_File& event_file,
                       presentation::Colours& colours, Dates& dates, state::Calendar_State& calendar)
    : grid_(grid), title_(title), event_file_(event_file), colours_(colours), dates_(dates), calendar_(calendar) {}

void Month_View::Build_First_Month() {
  grid_.Reset_Boxes();
  const basic::Civil_Date today = dates_.Today();
  grid_.Setup_Boxes(today.Month, today.Year);
  Go_To_Present_Month();
}

void Month_View::Fill_First_Month() {
  event_file_.Recover();
  Load_Dates();
  title_.Write();
  grid_.Set_Day_Headers();
}

void Month_View::Paint() {
  colours_.Set_Colours();
  grid_.Mark_Today();
}

void Month_View::Refresh_Calendar() {
  title_.Write();
  if (!calendar_.Compact_On) Redraw_Grid();
}

void Month_View::Redraw_Grid() {
  grid_.Set_Day_Headers();
  Redraw_Boxes();
}

void Month_View::Redraw_Boxes() {
  grid_.Setup_Boxes(calendar_.View_Month, calendar_.View_Year);
  Load_Dates();
  Paint();
}

void Month_View::Recolour(Colour_Part part) {
  switch (part) {
    case Colour_Part::Boxes: colours_.Colour_Boxes(); break;
    case Colour_Part::Today: grid_.Mark_Today(); break;
    case Colour_Part::Numbers: colours_.Colour_Nums(); break;
    case Colour_Part::Texts: colours_.Colour_Texts(); break;
    case Colour_Part::Title_Row: colours_.Colour_Menus(); break;
    case Colour_Part::Title_By_Activity: colours_.Colour_Menus_By_Activity(); break;
    case Colour_Part::Inactive_Title: colours_.Colour_Inactive(); break;
  }
}

void Month_View::Load_Dates() {
  grid_.Begin_Reading();
  event_file_.Load_Dates([this](std::string_view line) { grid_.Enter_Date(line); });
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

void Month_View::Go_To(basic::Int16 month, basic::Int16 year) {
  calendar_.View_Month = month;
  calendar_.View_Year = year;
}

void Month_View::Go_To_Present_Month() {
  const basic::Civil_Date today = dates_.Today();
  Go_To(today.Month, today.Year);
}

void Month_View::Begin_New_Day() {
  calendar_.Alerted_Today = false;
  Go_To_Present_Month();
  title_.Write();
  grid_.Set_Day_Headers();
}

void Month_View::Draw_New_Day() {
  if (!calendar_.Compact_On) {
    grid_.Setup_Boxes(calendar_.View_Month, calendar_.View_Year);
    Paint();
  }
  Load_Dates();
}

}  // namespace calendar
