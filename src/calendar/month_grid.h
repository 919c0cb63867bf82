// One month in the grid of day boxes: which box shows which day, what is written in it, and how today is marked.
#pragma once

#include <string_view>

#include "calendar/alerts.h"
#include "presentation/box_style.h"
#include "presentation/placement.h"

namespace calendar {

/// The box of the first day of a month, 0 to 6: the distance of its weekday from the first day of the week. Throws
/// error 5 for a year outside 100 to 9999.
basic::Int16 Start_Box(basic::Int16 month, basic::Int16 year, basic::Weekday first);

/// The number of days of the month that the day lies in.
std::int32_t DaysInMonth(basic::Serial_Day day);

class Month_Grid {
 public:
  Month_Grid(presentation::Main_Frm& main_frm, presentation::Placement& placement, Alerts& alerts, Dates& dates,
             const settings::Settings& settings, state::Calendar_State& calendar);

  /// Clears and shows all boxes.
  void Reset_Boxes();

  /// Builds the grid for a month, gives the window its size and place, and cuts its region.
  void Setup_Boxes(basic::Int16 month, basic::Int16 year);

  /// Writes the seven weekday headers.
  void Set_Day_Headers();

  /// Lays headers and boxes out in a style, whatever the setting says, and cuts the window's region. The caller places
  /// the window and fits the captions.
  void Restyle(basic::Int16 style);

  /// The same without the headers.
  void Lay_Out(basic::Int16 style);

  /// The same without headers and region: the window takes its size and keeps the region that it has.
  void Which_Style(basic::Int16 style);

  /// Called before each reading of the event file: removes the tips, and notes the present day for the alert.
  void Begin_Reading();

  /// Writes a line of the event file into its box if it belongs to the month on view, and tests it for the alert.
  /// Throws error 5, 6 or 13 if the line isn't an event, error 9 if its day has no box, and what Day_Box::Write_Event
  /// throws.
  void Enter_Date(std::string_view line);

  /// Empties the box of a day whose event has been cleared.
  void Clear_Event(basic::Int16 box) { main_frm_.Box(box).Clear_Event(); }

  /// Colours today's box if the present month is on view.
  void Mark_Today();

  /// Returns true if the box's caption holds text of an event, visible or not.
  [[nodiscard]] bool Has_Event(basic::Int16 box) const { return main_frm_.Box_Caption_Lbl[box].Caption != ""; }

  /// The box style in force: the setting's, or the pack's.
  [[nodiscard]] basic::Int16 Style_In_Force() const { return presentation::Style_In_Force(settings_, calendar_); }

  [[nodiscard]] basic::Int16 Pack_Box_Style() const { return calendar_.Pack_Box_Style; }

  /// The box of the first day of the month on view, and the day of a box of that month.
  [[nodiscard]] basic::Int16 First_Box() const;
  [[nodiscard]] basic::Int16 Day_Of_Box(basic::Int16 box) const;

  /// Set Selected_Date: to the day of a box of the month on view, to today, or to any day.
  void Select_Day_Of_Box(basic::Int16 box);
  void Select_Today();
  /// The same of any day, with four digits for the year whatever it is.
  void Select_Day(basic::Serial_Day day);

  /// The number of days from today to the day of a box, negative if that lies before today.
  [[nodiscard]] std::int32_t Days_From_Today(basic::Int16 box) const;

 private:
  void Enter_In_Box(const events::Event_Line& event);

  presentation::Main_Frm& main_frm_;
  presentation::Placement& placement_;
  Alerts& alerts_;
  Dates& dates_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
