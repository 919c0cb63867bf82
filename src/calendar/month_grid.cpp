#include "calendar/month_grid.h"

#include "basic/convert.h"
#include "basic/text.h"
#include "presentation/box_style.h"
#include "presentation/transparent_form.h"
#include "presentation/which_style.h"

namespace calendar {

using presentation::box_count;
using presentation::days_of_week;

Month_Grid::Month_Grid(presentation::Arrangement& arrangement, presentation::Placement& placement,
                       presentation::Caption_Fitting& caption_fitting, Alerts& alerts, platform::Clock& clock,
                       platform::Locale& locale, const settings::Settings& settings,
                       const state::Calendar_State& calendar)
    : arrangement_(arrangement), placement_(placement), caption_fitting_(caption_fitting), alerts_(alerts),
      clock_(clock), locale_(locale), settings_(settings), calendar_(calendar) {}

void Month_Grid::Reset_Boxes() {
  for (int i = 0; i < box_count; ++i) {
    toolkit::Label& box = arrangement_.Box_Lbl[i];
    toolkit::Label& caption = arrangement_.Box_Caption_Lbl[i];
    box.Visible = true;
    caption.Visible = true;
    box.BackColor = toolkit::white;
    box.Caption = "";
    caption.Caption = "";
  }
}

void Month_Grid::Setup_Boxes(basic::Int16 month, basic::Int16 year) {
  Reset_Boxes();
  const std::int32_t days = DaysInMonth(basic::Date_Serial(year.Value(), month.Value(), 1));
  const basic::Int16 first = Start_Box(month, year, First_Day_Of_Week(settings_, locale_));
  for (int day = 1; day <= days; ++day) arrangement_.Box_Lbl[first + day - 1].Caption = " " + basic::To_Text(day) + " ";
  Hide_Misc_Boxes();
  presentation::Which_Style(arrangement_, presentation::Style_In_Force(settings_, calendar_));
  placement_.Position_In_Force();
  presentation::TransparentForm(arrangement_.Main_Frm);
}

void Month_Grid::Hide_Misc_Boxes() {
  for (int i = 0; i < box_count; ++i) {
    if (arrangement_.Box_Lbl[i].Caption != "") continue;
    arrangement_.Box_Lbl[i].Visible = false;
    arrangement_.Box_Caption_Lbl[i].Visible = false;
  }
}

void Month_Grid::Set_Day_Headers() {
  const basic::Weekday first = First_Day_Of_Week(settings_, locale_);
  const bool initial_only = presentation::Small_Style(settings_);
  for (int i = 0; i < days_of_week; ++i) {
    const std::string_view name = locale_.Words().Short_Weekday_Name(basic::Weekday_At(i + 1, first));
    arrangement_.Day_Lbl[i].Caption = initial_only ? name.substr(0, 1) : name;
  }
}

void Month_Grid::Enter_Date(std::string_view line) {
  const events::Event_Line event = events::Read_Event_Line(line);
  if (event.Month == calendar_.View_Month && (event.Year == events::every_year || event.Year == calendar_.View_Year))
    Enter_In_Box(event);
  alerts_.Test(event);
}

void Month_Grid::Enter_In_Box(const events::Event_Line& event) {
  const basic::Int16 box_number = First_Box() + event.Day - 1;
  toolkit::Label& caption = arrangement_.Box_Caption_Lbl[box_number];
  toolkit::Label& box = arrangement_.Box_Lbl[box_number];
  if (settings_.Tooltips == 1) {
    const std::string text = basic::Single_Ampersands(event.Text);
    caption.ToolTipText = text;
    box.ToolTipText = text;
  }
  caption_fitting_.DotDotDot(event.Text, caption);
  if (presentation::Small_Style(settings_)) box.FontUnderline = true;
}

void Month_Grid::Mark_Today() {
  const basic::Civil_Date today = basic::Civil_From_Serial(clock_.Now().Day);
  if (calendar_.View_Month != today.Month || calendar_.View_Year != today.Year) return;
  arrangement_.Box_Lbl[First_Box() + today.Day - 1].BackColor = settings_.Today;
}

basic::Int16 Month_Grid::First_Box() const {
  return Start_Box(calendar_.View_Month, calendar_.View_Year, First_Day_Of_Week(settings_, locale_));
}

basic::Int16 Month_Grid::Day_Of_Box(basic::Int16 box) const { return box - First_Box() + 1; }

}  // namespace calendar
