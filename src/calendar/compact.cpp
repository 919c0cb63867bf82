#include "calendar/compact.h"

#include "presentation/transparent_form.h"

namespace calendar {

namespace {

enum Timeout_Format { in_seconds = 0, in_minutes = 1 };

basic::Int16 Timeout_Seconds(const settings::Settings& settings) {
  if (settings.Timeout_Format == in_seconds) return settings.Timeout_Value;
  if (settings.Timeout_Format == in_minutes) return settings.Timeout_Value * 60;
  return 0;
}

}  // namespace

Compact::Compact(presentation::Arrangement& arrangement, presentation::Placement& placement, Month_View& view,
                 const editor::Edit_Frm& editor, platform::Clock& clock, const settings::Settings& settings,
                 state::Calendar_State& calendar)
    : arrangement_(arrangement), placement_(placement), view_(view), editor_(editor), clock_(clock),
      settings_(settings), calendar_(calendar) {}

void Compact::Update_Timeout() {
  calendar_.Timeout_Date = basic::Second_Count(clock_.Now()) + Timeout_Seconds(settings_).Value();
}

void Compact::Idle_Restart() {
  if (!calendar_.Compact_On && settings_.Auto_Compact == 1) Update_Timeout();
}

void Compact::Compact_Mode() {
  arrangement_.Main_Frm.Scale = toolkit::Scale_Unit::Twips;
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
  arrangement_.Prev_Month_Lbl.Visible = true;
  arrangement_.Next_Month_Lbl.Visible = true;
  calendar_.Compact_On = false;
}

void Compact::Shrink() {
  arrangement_.Prev_Month_Lbl.Visible = false;
  arrangement_.Next_Month_Lbl.Visible = false;
  const toolkit::Label& title = arrangement_.Which_Month_Lbl;
  arrangement_.Main_Frm.Height = title.Top + title.Height + 50;
  calendar_.Compact_On = true;
  presentation::TransparentForm(arrangement_.Main_Frm);
  placement_.Position_In_Force();
}

void Compact::Auto_Compact_Check() {
  if (calendar_.Auto_Compacted || calendar_.Compact_On || editor_.Window.Visible() || calendar_.Tip_Showing) {
    Update_Timeout();
    return;
  }
  if (calendar_.Timeout_Date - basic::Second_Count(clock_.Now()) >= 1) return;
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
