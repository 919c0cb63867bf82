// Opens balloons: for a day box, with the day's distance from today as its title, or at a given place.
#pragma once

#include <memory>
#include <vector>

#include "tooltips/frm_balloon.h"

namespace tooltips {

/// "Yesterday", "Today", "Tomorrow", or the number of days with " days ago" or " days time". `days` counts
/// from today and is negative before it.
std::string Balloon_Title(std::int32_t days);

class Balloons {
 public:
  Balloons(toolkit::Backend& backend, platform::Screen& screen, presentation::Main_Frm& main_frm,
           state::Calendar_State& calendar, Balloon_Calls calls);

  /// Opens a balloon for box Tip_Box with an event's text. The day of the box lies `days` days from today. Events may
  /// be served before the balloon is shown: the month is rebuilt first, which may show a message box.
  void Balloon_Tooltip(const std::string& text, std::int32_t days);

  /// Opens a balloon at a place in twips on the screen, in front of `owner`. A 0 is replaced by the place beside
  /// box Tip_Box.
  void Show_Balloon(const std::string& title, const std::string& text, std::int32_t left, std::int32_t top,
                    toolkit::Form& owner);

  /// Closes every balloon that is open.
  void Unload_All();

 private:
  /// A balloon can't be destroyed while it closes itself, so the closed ones are destroyed when the next one opens.
  void Drop_Closed();

  toolkit::Backend& backend_;
  platform::Screen& screen_;
  presentation::Main_Frm& main_frm_;
  state::Calendar_State& calendar_;
  const Balloon_Calls calls_;
  std::vector<std::shared_ptr<Frm_Balloon>> balloons_;
};

}  // namespace tooltips
