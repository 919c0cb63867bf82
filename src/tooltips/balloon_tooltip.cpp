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

Balloons::Balloons(toolkit::Backend& backend, platform::Screen& screen, presentation::Main_Frm& main_frm,
                   state::Calendar_State& calendar, Balloon_Calls calls)
    : backend_(backend), screen_(screen), main_frm_(main_frm), calendar_(calendar), calls_(std::move(calls)) {}

void Balloons::Balloon_Tooltip(const std::string& text, std::int32_t days) {
  Show_Balloon(Balloon_Title(days), text, 0, 0, main_frm_.Window);
}

void Balloons::Show_Balloon(const std::string& title, const std::string& text, std::int32_t left, std::int32_t top,
                            toolkit::Form& owner) {
  Drop_Closed();
  // Shared: rebuilding the month may show a message box, under which this balloon may close and the next one drop it.
  const auto balloon = std::make_shared<Frm_Balloon>(backend_, screen_, main_frm_, calendar_, calls_, &owner);
  balloons_.push_back(balloon);
  balloon->SetBalloon(title, text, left, top, "i", "Tahoma, if exists", 8);
  balloon->Show();
}

void Balloons::Unload_All() {
  // A copy: closing a balloon calls handlers, which may open another one.
  for (const auto& balloon : std::vector(balloons_)) balloon->HideBalloon();
}

void Balloons::Drop_Closed() {
  std::erase_if(balloons_, [](const auto& balloon) { return !balloon->Window.Loaded(); });
}

}  // namespace tooltips
