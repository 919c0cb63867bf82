#include "calendar/compact.h"

#include "presentation/transparent_form.h"

namespace calendar {

namespace {

enum Timeout_Format { in_seconds = 0, in_minutes = 1 };

constexpr double bottom_margin = 50;  // twips

basic::Int16 Timeout_Seconds(const settings::Settings& settings) {
  if (settings.Timeout_Format == in_seconds) return settings.Timeout_Value;
  if (settings.Timeout_Format == in_minutes) return settings.Timeout_Value * 60;
  return 0;
}

}  // namespace

Compact::Compact(presentation::Main_Frm& main_frm, presentation::Placement& placement, Month_View& view, Dates& dates,
                 const settings::Settings& settings, state::Calendar_State& calendar)
    : main_frm_(main_frm), placement_(placement), view_(view), dates_(dates), settings_(settings), calendar_(calendar) {
}

void Compact::Update_Timeout() {
  calendar_.Timeout_Date = basic::Second_Count(dates_.Now()) + Timeout_Seconds(settings_).Value();
}

void Compact::Start_Idle_Time() {
  if (settings_.Auto_Compact == 1) Update_Timeout();
}

void Compact::Idle_Restart() {
  if (!calendar_.Compact_On && settings_.Auto_Compact == 1) Update_Timeout();
}

void Compact::Compact_Mode() {
  main_frm_.Window.Scale = toolkit::Scale_Unit::Twips;
  if (calendar_.Compact_On) Open();
  else Shrink();
}

void Compact::Open() {
  Leave_Without_Redraw();
  view_.Refresh_Calendar();
}

void Compact::Leave_Without_Redraw() {
  Update_Timeout();
  calendar_.Auto_Compacted = false;
  main_frm_.Prev_Month_Lbl.Visible = true;
  main_frm_.Next_Month_Lbl.Visible = true;
  calendar_.Compact_On = false;
}

void Compact::Shrink() {
  main_frm_.Prev_Month_Lbl.Visible = false;
  main_frm_.Next_Month_Lbl.Visible = false;
  const toolkit::Bounds& title = main_frm_.Which_Month_Lbl.In_Twips();
  main_frm_.Window.Height = title.Top + title.Height + bottom_margin;
  calendar_.Compact_On = true;
  presentation::TransparentForm(main_frm_.Window);
  placement_.Position_In_Force();
}

void Compact::Auto_Compact_Check(bool other_window_open) {
  if (settings_.Auto_Compact != 1) return;
  if (calendar_.Auto_Compacted || calendar_.Compact_On || other_window_open || calendar_.Settings_Visible ||
      calendar_.Tip_Showing) {
    Update_Timeout();
    return;
  }
  if (calendar_.Timeout_Date - basic::Second_Count(dates_.Now()) >= 1) return;
  calendar_.Auto_Compacted = true;
  Compact_Mode();
}

void Compact::Wake_Up() {
  if (!calendar_.Compact_On || settings_.Auto_Compact != 1 || !calendar_.Auto_Compacted) return;
  Which_Month_Lbl_DblClick();
  Update_Timeout();
  calendar_.Auto_Compacted = false;
}

}  // namespace calendar
