// Compact mode, in which only the title row is shown, and the idle time after which the calendar enters it by itself.
#pragma once

#include "calendar/month_view.h"

namespace calendar {

class Compact {
 public:
  Compact(presentation::Main_Frm& main_frm, presentation::Placement& placement, Month_View& view, Dates& dates,
          const settings::Settings& settings, state::Calendar_State& calendar);

  [[nodiscard]] bool On() const { return calendar_.Compact_On; }

  /// Starts the idle time again. Throws error 6 for an idle time of more than 546 minutes.
  void Update_Timeout();

  /// The same at the program's start, if the setting wants it.
  void Start_Idle_Time();

  /// The same when the user does something, if the setting wants it and compact mode is off.
  void Idle_Restart();

  /// Leaves compact mode if it is on, enters it otherwise.
  void Compact_Mode();

  /// Called on a double-click on the title, and by the commands that do the same.
  void Which_Month_Lbl_DblClick() { Compact_Mode(); }

  /// Leaves compact mode without drawing anything, for a change of the box style.
  void Leave_Without_Redraw();

  /// Called on each tick. If the setting wants it, enters compact mode once the idle time has run out; starts the idle
  /// time again while the calendar is in compact mode, a balloon is shown, or another window is open in which the user
  /// works.
  void Auto_Compact_Check(bool other_window_open);

  /// Called while the pointer moves over the title: leaves compact mode if the idle time has started it.
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
