// What the mouse, the keys, the menus, the tick and the other windows may ask of the calendar. They call this class
// alone and need not know the parts that do the work.
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

  // The month on view. In compact mode only its title is drawn. A year outside 100 to 9999 throws error 5, one beyond
  // 16 bits error 6.

  void Show_Month(basic::Int16 month, basic::Int16 year);
  void Previous_Month() { view_.Previous_Month(); }
  void Next_Month() { view_.Next_Month(); }
  void Show_Present_Month();
  void Refresh_Calendar() { view_.Refresh_Calendar(); }
  void Rebuild_Month() { view_.Redraw_Grid(); }
  /// The same without the weekday headers.
  void Rebuild_Boxes() { view_.Redraw_Boxes(); }
  /// Draws title and grid; does nothing in compact mode.
  void Refresh_Unless_Compact();

  // The day boxes, of the month on view.

  [[nodiscard]] bool Has_Event(basic::Int16 box) const { return grid_.Has_Event(box); }
  [[nodiscard]] std::int32_t Days_From_Today(basic::Int16 box) const { return grid_.Days_From_Today(box); }

  /// Set Selected_Date: to the day of a box, to today, or to any day.
  void Select_Day_Of_Box(basic::Int16 box) { grid_.Select_Day_Of_Box(box); }
  void Select_Today() { grid_.Select_Today(); }
  void Select_Day(basic::Serial_Day day) { grid_.Select_Day(day); }

  void Edit_Day(basic::Int16 box) { edit_box_.Open(box); }
  void Clear_Day(basic::Int16 box) { edit_box_.Clear(box); }
  /// What the editor holds; empty if it isn't loaded.
  [[nodiscard]] events::Day_Event Editor_Content() const { return edit_box_.Editor_Content(); }

  // How the window looks and where it is.

  [[nodiscard]] basic::Int16 Style_In_Force() const { return grid_.Style_In_Force(); }
  /// The box style of the pack, whether it is in force or not.
  [[nodiscard]] basic::Int16 Pack_Box_Style() const { return grid_.Pack_Box_Style(); }
  /// The position that the pack gives, in force or not.
  [[nodiscard]] basic::Int16 Pack_Pos() const { return placement_.Pack_Pos(); }

  /// Lays the calendar out in a style, fits the captions to it and places the window again.
  void Restyle(basic::Int16 style);

  [[nodiscard]] basic::Int16 Position_In_Force() const { return placement_.Number_In_Force(); }

  /// Sets the desktop's picture; an empty path removes it.
  void Set_Wallpaper(const std::string& path, basic::Int16 display_mode) {
    wallpaper_.Set_Wallpaper(path, display_mode);
  }

  /// Applies the picture of a pack for the present month and takes over its box style and position, if packs are on.
  /// The caller then has to lay out and place the window.
  void Apply_Pack(const std::string& pack) { wallpaper_.Get_Wallpaper_Stuff(pack); }
  /// The same for any month (1 to 12), whether packs are on or not.
  void Preview_Pack(const std::string& pack, basic::Int16 month) { wallpaper_.Preview_Wallpaper_Stuff(pack, month); }

  /// Lays the calendar out in a style, with its headers and its events; the window stays where it is.
  void Take_Style(basic::Int16 style);
  /// Does the layout alone, and cuts the window's region to it.
  void Lay_Out(basic::Int16 style) { grid_.Lay_Out(style); }
  /// Does the layout without the region, which the caller has to bring up to date.
  void Which_Style(basic::Int16 style) { grid_.Which_Style(style); }
  void Position_Form(basic::Int16 position) { placement_.Position_Form(position); }

  void Recolour(Colour_Part part) { view_.Recolour(part); }

  [[nodiscard]] int Present_Month() const { return view_.Present_Month(); }
  /// The full name of month 1 to 12 in the user's language.
  [[nodiscard]] const std::string& Month_Name(int month) const { return view_.Month_Name(month); }

  /// The text that the title would have with these formats.
  const std::string& Title_By(bool show_time, const std::string& time_format, const std::string& date_format) {
    return view_.Title_By(show_time, time_format, date_format);
  }

  /// Leaves compact mode if it is on, enters it otherwise.
  void Compact_Mode() { compact_.Which_Month_Lbl_DblClick(); }
  /// Leaves it without drawing anything: the caller draws next.
  void Leave_Compact_Mode() { compact_.Leave_Without_Redraw(); }

  /// Starts the idle time again, whatever the setting. Throws error 6 for an idle time of more than 546 minutes.
  void Update_Timeout() { compact_.Update_Timeout(); }
  /// The user has done something: starts the idle time again if it counts.
  void Idle_Restart() { compact_.Idle_Restart(); }
  /// The pointer is over the title: leaves compact mode if the idle time has started it.
  void Wake_Up() { compact_.Wake_Up(); }

  // The start, the tick and the new day.

  /// Draws the present month at the start, with the pack's wallpaper; Paint adds the colours.
  void Draw_First_Month();
  void Paint() { view_.Paint(); }
  void Start_Idle_Time() { compact_.Start_Idle_Time(); }

  void Follow_Active_State() { view_.Follow_Active_State(); }
  void Follow_Idle_Time() { compact_.Auto_Compact_Check(edit_box_.Editor_Visible()); }
  void Follow_Work_Area() { placement_.RePosition(); }
  void Keep_Title(const basic::Moment& now) { view_.Keep_Title(now); }

  /// Goes to the present month, sets its wallpaper and shows the new day's alert if it is due.
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
