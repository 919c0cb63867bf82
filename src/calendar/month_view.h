// The change of the month on view: the title, and the one order of calls that redraws the grid everywhere.
#pragma once

#include "calendar/month_grid.h"
#include "calendar/title_text.h"
#include "events/event_file.h"
#include "presentation/colours.h"

namespace calendar {

class Month_View {
 public:
  Month_View(presentation::Arrangement& arrangement, Month_Grid& grid, Title_Text& title,
             events::Event_File& event_file, Alerts& alerts, presentation::Colours& colours, platform::Clock& clock,
             state::Calendar_State& calendar);

  /// Writes the title of the month on view.
  void Write_Title();

  /// Reads the event file into the grid, and raises the alert if it is due.
  void Load_Dates();

  /// The title, and the grid unless compact mode hides it.
  void Refresh_Calendar();

  /// The grid of the month on view, without the title and whatever the mode.
  void Redraw_Grid();

  /// One month back or on. Throw error 6 beyond 16 bits, error 5 outside the years 100 to 9999.
  void Previous_Month();
  void Next_Month();

  /// View_Month and View_Year become the present ones; nothing is drawn.
  void Go_To_Present_Month();

 private:
  presentation::Arrangement& arrangement_;
  Month_Grid& grid_;
  Title_Text& title_;
  events::Event_File& event_file_;
  Alerts& alerts_;
  presentation::Colours& colours_;
  platform::Clock& clock_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
