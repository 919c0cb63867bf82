#include "calendar/month_grid.h"

#include "basic/date_pattern.h"
#include "presentation/transparent_form.h"
#include "presentation/which_style.h"

namespace calendar {

using presentation::box_count;
using presentation::days_of_week;

basic::Int16 Start_Box(basic::Int16 month, basic::Int16 year, basic::Weekday first) {
  const basic::Serial_Day first_of_month = basic::Date_Serial(year.Value(), month.Value(), 1);
  return basic::Place_In_Week(basic::Weekday_Of(first_of_month), first) - 1;
}

std::int32_t DaysInMonth(basic::Serial_Day day) {
  const basic::Civil_Date date = basic::Civil_From_Serial(day);
  return basic::Civil_From_Serial(basic::Date_Serial(date.Year, date.Month + 1, 0)).Day;
}

Month_Grid::Month_Grid(presentation::Main_Frm& main_frm, presentation::Placement& placement, Alerts& alerts,
                       Dates& dates, const settings::Settings& settings, state::Calendar_State& calendar)
    : main_frm_(main_frm), placement_(placement), alerts_(alerts), dates_(dates), settings_(settings),
      calendar_(calendar) {}

void Month_Grid::Reset_Boxes() {
  for (int i = 0; i < box_count; ++i) main_frm_.Box(i).Reset();
}

void Month_Grid::Setup_Boxes(basic::Int16 month, basic::Int16 year) {
  Reset_Boxes();
  const std::int32_t days = DaysInMonth(basic::Date_Serial(year.Value(), month.Value(), 1));
  const basic::Int16 first = Start_Box(month, year, dates_.First_Day_Of_Week(settings_));
  for (int day = 1; day <= days; ++day) main_frm_.Box(first + day - 1).Set_Day(day);
  for (int i = 0; i < box_count; ++i) main_frm_.Box(i).Hide_If_Empty();
  Which_Style(Style_In_Force());
  placement_.Position_In_Force();
  presentation::TransparentForm(main_frm_.Window);
}

void Month_Grid::Set_Day_Headers() {
  const basic::Weekday first = dates_.First_Day_Of_Week(settings_);
  const bool initial_only = presentation::Small_Style(settings_);
  for (int i = 0; i < days_of_week; ++i) {
    const std::string_view name = dates_.Words().Short_Weekday_Name(basic::Weekday_At(i + 1, first));
    main_frm_.Day_Lbl[i].Caption = initial_only ? name.substr(0, 1) : name;
  }
}

void Month_Grid::Restyle(basic::Int16 style) {
  Set_Day_Headers();
  Lay_Out(style);
}

void Month_Grid::Which_Style(basic::Int16 style) { presentation::Which_Style(main_frm_, style); }

void Month_Grid::Lay_Out(basic::Int16 style) {
  Which_Style(style);
  presentation::TransparentForm(main_frm_.Window);
}

void Month_Grid::Begin_Reading() {
  alerts_.Take_Present_Day();
  main_frm_.Clear_Tooltips();
}

void Month_Grid::Enter_Date(std::string_view line) {
  const events::Event_Line event = events::Read_Event_Line(line);
  if (event.Month == calendar_.View_Month && (event.Year == events::every_year || event.Year == calendar_.View_Year))
    Enter_In_Box(event);
  alerts_.Test(event);
}

void Month_Grid::Enter_In_Box(const events::Event_Line& event) {
  const presentation::Day_Box box = main_frm_.Box(First_Box() + event.Day - 1);
  box.Write_Event(event.Text, settings_, calendar_);
  if (presentation::Small_Style(settings_)) box.Underline(true);
}

void Month_Grid::Mark_Today() {
  const basic::Civil_Date today = dates_.Today();
  if (calendar_.View_Month != today.Month || calendar_.View_Year != today.Year) return;
  main_frm_.Box_Lbl[First_Box() + today.Day - 1].BackColor = settings_.Today;
}

basic::Int16 Month_Grid::First_Box() const {
  return Start_Box(calendar_.View_Month, calendar_.View_Year, dates_.First_Day_Of_Week(settings_));
}

basic::Int16 Month_Grid::Day_Of_Box(basic::Int16 box) const { return box - First_Box() + 1; }

void Month_Grid::Select_Day_Of_Box(basic::Int16 box) {
  calendar_.Selected_Date = events::Date_Key(Day_Of_Box(box), calendar_.View_Month, calendar_.View_Year);
}

void Month_Grid::Select_Today() {
  const basic::Civil_Date today = dates_.Today();
  calendar_.Selected_Date = events::Date_Key(today.Day, today.Month, today.Year);
}

void Month_Grid::Select_Day(basic::Serial_Day day) {
  basic::Date_Words words = dates_.Words();
  words.Date_Separator = "/";
  calendar_.Selected_Date = basic::Format_Date({day, 0}, "d/m/yyyy", words);
}

std::int32_t Month_Grid::Days_From_Today(basic::Int16 box) const {
  const basic::Serial_Day day =
      basic::Date_Serial(calendar_.View_Year.Value(), calendar_.View_Month.Value(), Day_Of_Box(box).Value());
  return day - dates_.Present_Day();
}

}  // namespace calendar
