#include "tooltips/balloon_tooltip.h"

#include "basic/convert.h"

namespace tooltips {

std::string Balloon_Title(std::int32_t days) {
  if (days < -1) return basic::To_Text(-days) + " days ago";
  if (days == -1) return "Yesterday";
  if (days == 0) return "Today";
  if (days == 1) return "Tomorrow";
  return basic::To_Text(days) + " days time";
}

Balloons::Balloons(toolkit::Backend& backend, platform::Screen& screen, platform::Clock& clock,
                   presentation::Arrangement& arrangement, state::Calendar_State& calendar)
    : backend_(backend), screen_(screen), clock_(clock), arrangement_(arrangement), calendar_(calendar) {}

void Balloons::Balloon_Tooltip(const std::string& text) {
  const basic::Serial_Day day = basic::Date_Serial(calendar_.View_Year.Value(), calendar_.View_Month.Value(),
                                                   Day_Of_Box(calendar_.Tip_Box).Value());
  const std::string title = Balloon_Title(day - clock_.Now().Day);
  Drop_Closed();
  // Rebuilding the month can bring up a message, and under it another balloon can open.
  const auto balloon = std::make_shared<Frm_Balloon>(backend_, screen_, arrangement_, calendar_, Calls);
  balloons_.push_back(balloon);
  balloon->SetBalloon(title, text, 0, 0, "i", "Tahoma, if exists", 8);
  balloon->Show();
}

void Balloons::Unload_All() {
  for (const auto& balloon : balloons_) balloon->HideBalloon();
}

void Balloons::Drop_Closed() {
  std::erase_if(balloons_, [](const auto& balloon) { return !balloon->Window.Loaded(); });
}

}  // namespace tooltips
