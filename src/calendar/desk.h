// What may be asked of the calendar, in the words of those who ask: the mouse, the keys, the menus, the tick, and the windows
// that open from it. Nobody who asks needs to know the parts behind it.
#pragma once

#include <functional>

#include "calendar/compact.h"
#include "calendar/edit_box.h"
#include "packs/wallpaper_stuff.h"

namespace calendar {

/// What only the whole program can do.
struct Program_Calls {
  std::function<void()> Exit;
  std::function<void()> Show_Settings;
};

class Desk {
 public:
  Desk(Month_View& view, Month_Grid& grid, Compact& compact, Edit_Box& edit_box, presentation::Placement& placement,
       packs::Wallpaper_Stuff& wallpaper, Program_Calls calls);

  // The month on view. Compact mode shows its title alone. A year outside 100 to 9999 throws error 5, one beyond 16 bits
  // error 6.

  void Show_Month(basic::Int16 month, basic::Int16 year);
  void Previous_Month() { view_.Previous_Month(); }
  void Next_Month() { view_.Next_Month(); }
  void Show_Present_Month();
  void Refresh_Calendar() { view_.Refresh_Calendar(); }
  void Rebuild_Month() { view_.Redraw_Grid(); }
  /// The same without the weekday headers.
  void Rebuild_Boxes() { view_.Redraw_Boxes(); }
  /// Title and grid, if the window isn't shrunk to its title.
  void Refresh_Unless_Compact();

  // The day boxes, of the month on view.

  [[nodiscard]] bool Has_Event(basic::Int16 box) const { return grid_.Has_Event(box); }
  [[nodiscard]] std::int32_t Days_From_Today(basic::Int16 box) const { return grid_.Days_From_Today(box); }

  /// The day of a box, or today, becomes Selected_Date.
  void Select_Day_Of_Box(basic::Int16 box) { grid_.Select_Day_Of_Box(box); }
  void Select_Today() { grid_.Select_Today(); }
  void Select_Day(basic::Serial_Day day) { grid_.Select_Day(day); }

  void Edit_Day(basic::Int16 box) { edit_box_.Open(box); }
  void Clear_Day(basic::Int16 box) { edit_box_.Clear(box); }
  /// What the open editor holds; empty while it is closed.
  [[nodiscard]] events::Day_Event Editor_Content() const { return edit_box_.Editor_Content(); }

  // How the window looks and where it stands.

  [[nodiscard]] basic::Int16 Style_In_Force() const { return grid_.Style_In_Force(); }
  /// The style that the pack gives, in force or not.
  [[nodiscard]] basic::Int16 Pack_Box_Style() const { return grid_.Pack_Box_Style(); }

  /// Lays the calendar out in a style, fits the captions anew and places the window again.
  void Restyle(basic::Int16 style);

  [[nodiscard]] basic::Int16 Position_In_Force() const { return placement_.Number_In_Force(); }

  /// The desktop gets a picture, or none for an empty path.
  void Set_Wallpaper(const std::string& path, basic::Int16 display_mode) {
    wallpaper_.Set_Wallpaper(path, display_mode);
  }

  /// Takes picture, box style and position of today's month of a pack, if packs are on. The style and the place are to be
  /// applied after that.
  void Apply_Pack(const std::string& pack) { wallpaper_.Get_Wallpaper_Stuff(pack); }
  /// The same of any month, whether packs are on or not.
  void Preview_Pack(const std::string& pack, basic::Int16 month) { wallpaper_.Preview_Wallpaper_Stuff(pack, month); }

  /// Lays the calendar out in a style, with its headers and its events; the window stays where it is.
  void Take_Style(basic::Int16 style);
  /// The layout alone.
  void Lay_Out(basic::Int16 style) { grid_.Lay_Out(style); }
  void Position_Form(basic::Int16 position) { placement_.Position_Form(position); }

  void Recolour(Colour_Part part) { view_.Recolour(part); }

  /// The text that the title would have by these formats.
  const std::string& Title_By(bool show_time, const std::string& time_format, const std::string& date_format) {
    return view_.Title_By(show_time, time_format, date_format);
  }

  /// Opens the shrunk window or shrinks the open one.
  void Compact_Mode() { compact_.Which_Month_Lbl_DblClick(); }
  /// Opens it without drawing anything, for what is to be drawn next.
  void Leave_Compact_Mode() { compact_.Leave_Without_Redraw(); }

  /// The idle time starts afresh, whatever the setting. Throws error 6 for a time of more than 546 minutes.
  void Update_Timeout() { compact_.Update_Timeout(); }
  /// The user is there: the idle time starts afresh.
  void Idle_Restart() { compact_.Idle_Restart(); }
  /// The pointer is over the title: a window that shrank by itself opens.
  void Wake_Up() { compact_.Wake_Up(); }

  // The course of time.

  /// The load's drawing of the present month up to its colours, with the pack's wallpaper, and the colours.
  void Draw_First_Month();
  void Paint() { view_.Paint(); }
  void Start_Idle_Time() { compact_.Start_Idle_Time(); }

  void Follow_Active_State() { view_.Follow_Active_State(); }
  void Follow_Idle_Time() { compact_.Auto_Compact_Check(edit_box_.Editor_Visible()); }
  void Follow_Work_Area() { placement_.RePosition(); }
  void Keep_Title() { view_.Keep_Title(); }

  /// Goes to the present month, with its wallpaper and the new day's alert.
  void Begin_New_Day();

  void Show_Settings() { calls_.Show_Settings(); }
  void Exit() { calls_.Exit(); }

 private:
  Month_View& view_;
  Month_Grid& grid_;
  Compact& compact_;
  Edit_Box& edit_box_;
  presentation::Placement& placement_;
  packs::Wallpaper_Stuff& wallpaper_;
  const Program_Calls calls_;
};

}  // namespace calendar
