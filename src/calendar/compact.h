// Compact mode, in which only the title row is shown, and the idle time after which the calendar goes into it by itself.
#pragma once

#include "calendar/month_view.h"

namespace calendar {

class Compact {
 public:
  Compact(presentation::Main_Frm& main_frm, presentation::Placement& placement, Month_View& view, Dates& dates,
          const settings::Settings& settings, state::Calendar_State& calendar);

  [[nodiscard]] bool On() const { return calendar_.Compact_On; }

  /// Starts the idle time afresh. Throws error 6 for a time of more than 546 minutes.
  void Update_Timeout();

  /// The same in the load, where the setting wants it.
  void Start_Idle_Time();

  /// The same on the user's activity: only where the idle time counts, with the window open and the setting on.
  void Idle_Restart();

  /// Opens the shrunk window or shrinks the open one.
  void Compact_Mode();

  /// The double-click on the title, and the commands that do the same.
  void Which_Month_Lbl_DblClick() { Compact_Mode(); }

  /// Opens the window for another box style: out of compact mode without drawing anything.
  void Leave_Without_Redraw();

  /// The tick's test, where the setting wants it: shrinks the window when the idle time has run out, and starts it afresh
  /// while another window that the user works in is open.
  void Auto_Compact_Check(bool other_window_open);

  /// The pointer over the title: opens a window that shrank by itself.
  void Wake_Up();

 private:
  void Open();
  void Shrink();

  presentation::Main_Frm& main_frm_;
  presentation::Placement& placement_;
  Month_View& view_;
  Dates& dates_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
