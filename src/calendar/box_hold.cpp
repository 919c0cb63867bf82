#include "calendar/box_hold.h"

namespace calendar {

namespace {

constexpr float hold_seconds = 0.3F;

}  // namespace

Box_Hold::Box_Hold(Desk& desk, events::Event_File& event_file, tooltips::Balloons& balloons, platform::Waits& waits,
                   const settings::Settings& settings, state::Calendar_State& calendar)
    : desk_(desk), event_file_(event_file), balloons_(balloons), waits_(waits), settings_(settings),
      calendar_(calendar) {}

void Box_Hold::Press(basic::Int16 index) {
  if (settings_.Tooltips != settings::balloon_tips || !desk_.Has_Event(index)) return;
  calendar_.Mouse_Released = false;
  waits_.TimeOut(hold_seconds);
  if (calendar_.Mouse_Released) return;
  calendar_.Tip_Box = index;
  desk_.Select_Day_Of_Box(index);
  const std::string text = event_file_.Get_Message();
  balloons_.Balloon_Tooltip(text, desk_.Days_From_Today(index));
}

}  // namespace calendar
