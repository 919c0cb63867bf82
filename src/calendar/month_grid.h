// One month in the grid of day boxes: which box holds which day, what stands in it, and how today is marked.
#pragma once

#include <string_view>

#include "calendar/alerts.h"
#include "calendar/days.h"
#include "presentation/caption_fitting.h"
#include "presentation/placement.h"

namespace calendar {

class Month_Grid {
 public:
  Month_Grid(presentation::Arrangement& arrangement, presentation::Placement& placement,
             presentation::Caption_Fitting& caption_fitting, Alerts& alerts, platform::Clock& clock,
             platform::Locale& locale, const settings::Settings& settings, const state::Calendar_State& calendar);

  /// Clears and shows all boxes.
  void Reset_Boxes();

  /// Builds the grid for a month, gives the window its size and place, and cuts its region.
  void Setup_Boxes(basic::Int16 month, basic::Int16 year);

  /// Writes the seven weekday headers.
  void Set_Day_Headers();

  /// Puts a line of the event file into its box if it belongs to the month on view, and tests it for the alert. Throws
  /// error 5, 6, 9 or 13 for a line that is none, or of a day without a box.
  void Enter_Date(std::string_view line);

  /// Colours today's box if the present month is on view.
  void Mark_Today();

  /// The box of the first day of the month on view, and the day of a box of that month.
  [[nodiscard]] basic::Int16 First_Box() const;
  [[nodiscard]] basic::Int16 Day_Of_Box(basic::Int16 box) const;

 private:
  void Hide_Misc_Boxes();
  void Enter_In_Box(const events::Event_Line& event);

  presentation::Arrangement& arrangement_;
  presentation::Placement& placement_;
  presentation::Caption_Fitting& caption_fitting_;
  Alerts& alerts_;
  platform::Clock& clock_;
  platform::Locale& locale_;
  const settings::Settings& settings_;
  const state::Calendar_State& calendar_;
};

}  // namespace calendar
