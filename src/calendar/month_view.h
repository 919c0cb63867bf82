// The change of the month on view: the title, and the one order of calls that redraws the grid everywhere.
#pragma once

#include "calendar/month_grid.h"
#include "calendar/title_text.h"
#include "events/event_file.h"
#include "presentation/colours.h"

namespace calendar {

/// The parts of the window that a colour setting paints.
enum class Colour_Part { Boxes, Today, Numbers, Texts, Title_Row, Inactive_Title };

class Month_View {
 public:
  Month_View(Month_Grid& grid, Title_Text& title, events::Event_File& event_file, presentation::Colours& colours,
             Dates& dates, state::Calendar_State& calendar);

  // The load's drawing of the present month, in its order.

  /// The grid without events; View_Month and View_Year.
  void Build_First_Month();
  /// Events, title and headers.
  void Fill_First_Month();
  /// All colours, and the mark of today.
  void Paint();

  /// On each tick.
  void Keep_Title() { title_.Keep_Written(); }

  /// The title, and the grid unless compact mode hides it.
  void Refresh_Calendar();

  /// The grid of the month on view, without the title and whatever the mode.
  void Redraw_Grid();
  /// The same, and the weekday headers stay as they are.
  void Redraw_Boxes();

  /// Reads the event file into the grid, and raises the alert if it is due.
  void Load_Dates();

  /// One month back or on. Throw error 6 beyond 16 bits, error 5 outside the years 100 to 9999.
  void Previous_Month();
  void Next_Month();

  /// One part of the window alone, from the settings.
  void Recolour(Colour_Part part);

  /// The text that the title would have by these formats.
  const std::string& Title_By(bool show_time, const std::string& time_format, const std::string& date_format) {
    return title_.Get_Bar_Text(show_time, time_format, date_format);
  }

  /// On each tick: paints the title row anew if the window has become active or inactive.
  void Follow_Active_State() { colours_.Follow_Active_State(); }

  /// View_Month and View_Year become these, or the present ones; nothing is drawn.
  void Go_To(basic::Int16 month, basic::Int16 year);
  void Go_To_Present_Month();

  /// A new day has begun: title and headers, and after the pack's wallpaper the grid. The reading of the events comes last,
  /// so that the new month stands painted while the alert of the new day is open.
  void Begin_New_Day();
  void Draw_New_Day();

 private:
  Month_Grid& grid_;
  Title_Text& title_;
  events::Event_File& event_file_;
  presentation::Colours& colours_;
  Dates& dates_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
