// Changes the month on view: writes the title, and keeps the one order of calls by which the grid is redrawn
// everywhere.
#pragma once

#include "calendar/month_grid.h"
#include "calendar/title_text.h"
#include "events/event_file.h"
#include "presentation/colours.h"

namespace calendar {

/// The parts of the window that a colour setting paints.
enum class Colour_Part { Boxes, Today, Numbers, Texts, Title_Row, Title_By_Activity, Inactive_Title };

class Month_View {
 public:
  Month_View(Month_Grid& grid, Title_Text& title, events::Event_File& event_file, presentation::Colours& colours,
             Dates& dates, state::Calendar_State& calendar);

  // The steps that draw the present month at the start, in their order.

  /// Builds the grid without events, and sets View_Month and View_Year.
  void Build_First_Month();
  /// Writes events, title and headers.
  void Fill_First_Month();
  /// Applies all colours and marks today.
  void Paint();

  /// Called on each tick with the present moment: writes the title again if it has changed.
  void Keep_Title(const basic::Moment& now) { title_.Keep_Written(now); }

  /// Draws the title, and the grid unless compact mode is on.
  void Refresh_Calendar();

  /// Draws the grid of the month on view without the title, also in compact mode.
  void Redraw_Grid();
  /// The same, and the weekday headers stay as they are.
  void Redraw_Boxes();

  /// Reads the event file into the grid, and shows the alert if it is due. **Events are served while the alert is
  /// open.**
  void Load_Dates();

  /// One month back or on. Throw error 5 outside the years 100 to 9999, error 6 beyond 16 bits.
  void Previous_Month();
  void Next_Month();

  /// Applies the colour settings to one part of the window alone.
  void Recolour(Colour_Part part);

  [[nodiscard]] int Present_Month() const { return dates_.Today().Month; }
  [[nodiscard]] const std::string& Month_Name(int month) const { return dates_.Words().Month_Name(month); }

  /// The text that the title would have with these formats. Valid until the title is written again.
  const std::string& Title_By(bool show_time, const std::string& time_format, const std::string& date_format) {
    return title_.Get_Bar_Text(show_time, time_format, date_format);
  }

  /// Called on each tick: colours the title row again if the window has become active or inactive.
  void Follow_Active_State() { colours_.Follow_Active_State(); }

  /// Set View_Month and View_Year, the second to the present ones. Draw nothing.
  void Go_To(basic::Int16 month, basic::Int16 year);
  void Go_To_Present_Month();

  /// Goes to the present month, and writes title and headers.
  void Begin_New_Day();

  /// Draws the grid, after the pack's wallpaper has been set. Reads the events last, so that the new month is already
  /// painted while the alert of the new day is open.
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
