#include "settings_window/statistics.h"

#include "basic/convert.h"
#include "basic/text.h"

namespace settings_window {

namespace {

/// July has four letters, deliberately.
constexpr std::array<std::string_view, 12> titles_of_months{
    "Jan: ", "Feb: ", "Mar: ", "Apr: ", "May: ", "Jun: ", "July: ", "Aug: ", "Sep: ", "Oct: ", "Nov: ", "Dec: "};

constexpr std::string_view no_year = "yyyy";

/// Takes what stands before the next "/" off the front of the date. Throws error 13 if there is none.
std::string_view Take_Field(std::string_view& date) {
  const std::size_t slash = date.find('/');
  if (slash == std::string_view::npos) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  const std::string_view field = date.substr(0, slash);
  date.remove_prefix(slash + 1);
  return field;
}

std::string With_Number(std::string_view title, basic::Int16 number) {
  std::string text(title);
  text += basic::To_Text(number);
  return text;
}

}  // namespace

Statistics::Statistics(toolkit::Frame& page, events::Event_File& event_file, calendar::Dates& dates)
    : Events_Fra(page, "Events_Fra"), Total_All_Lbl(Events_Fra, "Total_All_Lbl"),
      Total_Year_Lbl(Events_Fra, "Total_Year_Lbl"), Before_Lbl(Events_Fra, "Before_Lbl"),
      After_Lbl(Events_Fra, "After_Lbl"), Yearview_Fra(page, "Yearview_Fra"),
      Month_Count_Lbl(Yearview_Fra, "Month_Count_Lbl", 12), event_file_(event_file), dates_(dates) {
  Place_Controls();
  Write_Month_Titles();
  Write_Labels();
}

/// The months run down in three columns.
void Statistics::Place_Controls() {
  constexpr int rows = 4;
  Events_Fra.Place({0, 705, 5145, 1215});
  Total_All_Lbl.Place({225, 360, 2295, 195});
  Total_Year_Lbl.Place({225, 780, 2295, 195});
  Before_Lbl.Place({2655, 360, 2295, 195});
  After_Lbl.Place({2655, 780, 2295, 195});
  Yearview_Fra.Place({0, 2010, 5145, 1830});
  Yearview_Fra.Caption = "Events this Year";
  for (int i = 0; i < Month_Count_Lbl.Count(); ++i)
    Month_Count_Lbl[i].Place({225.0 + 1620 * (i / rows), 360.0 + 360 * (i % rows), 1485, 195});
}

void Statistics::Write_Month_Titles() { month_titles_ = titles_of_months; }

void Statistics::Get_Stats() {
  Reset_Vars();
  Load_Dates();
}

void Statistics::Reset_Vars() { counters_ = {}; }

/// All lines are counted in one moment.
void Statistics::Load_Dates() {
  today_ = dates_.Present_Day();
  if (event_file_.Load_Dates([this](std::string_view line) { Workout_Stats(line); })) Write_Labels();
}

void Statistics::Workout_Stats(std::string_view line) {
  std::string_view year = basic::Split_At_First(line, '=').left;
  const basic::Int16 day = basic::To_Int16(Take_Field(year));
  const basic::Int16 month = basic::To_Int16(Take_Field(year));
  if (year == no_year) {
    Count_Month(month);
    return;
  }
  const std::string date =
      basic::To_Text(day) + "/" + basic::To_Text(month) + "/" + std::string(basic::Trim_Blanks(year));
  const basic::Serial_Day days = dates_.Read_Date(date) - today_;
  if (days < 0) counters_.Before_Count += 1;
  if (days > 0) counters_.After_Count += 1;
  counters_.Total_Count += 1;
  if (basic::To_Int16(year) != basic::Civil_From_Serial(today_).Year) return;
  counters_.Year_Count += 1;
  Count_Month(month);
}

void Statistics::Count_Month(basic::Int16 month) {
  if (month < 1 || month > 12) throw basic::Run_Error(basic::Error_Number::Subscript_Out_Of_Range);
  counters_.Month_Counts[static_cast<std::size_t>(month.Value()) - 1] += 1;
}

void Statistics::Write_Labels() {
  Total_All_Lbl.Caption = With_Number("Total Events: ", counters_.Total_Count);
  Total_Year_Lbl.Caption = With_Number("Events This Year: ", counters_.Year_Count);
  Before_Lbl.Caption = With_Number("No. Before Today: ", counters_.Before_Count);
  After_Lbl.Caption = With_Number("No. After Today: ", counters_.After_Count);
  for (std::size_t i = 0; i < month_titles_.size(); ++i)
    Month_Count_Lbl[i].Caption = With_Number(month_titles_[i], counters_.Month_Counts[i]);
}

}  // namespace settings_window
