// The opening of a balloon for a day box, with the day's distance from today as its title.
#pragma once

#include <memory>
#include <vector>

#include "platform/clock.h"
#include "tooltips/frm_balloon.h"

namespace tooltips {

/// "Yesterday", "Today", "Tomorrow", or the number of days with " days ago" or " days time". `days` from today on.
std::string Balloon_Title(std::int32_t days);

class Balloons {
 public:
  Balloons(toolkit::Backend& backend, platform::Screen& screen, platform::Clock& clock,
           presentation::Arrangement& arrangement, state::Calendar_State& calendar);

  /// To be tied before the first balloon.
  Balloon_Calls Calls;

  /// The day of a box of the month on view.
  std::function<basic::Int16(basic::Int16 box)> Day_Of_Box;

  /// Opens a balloon for box Tip_Box with an event's text.
  void Balloon_Tooltip(const std::string& text);

  /// Closes the balloon that is open, if one is.
  void Unload_All();

 private:
  /// A balloon can't go while it closes itself, so those that have closed go when the next one opens.
  void Drop_Closed();

  toolkit::Backend& backend_;
  platform::Screen& screen_;
  platform::Clock& clock_;
  presentation::Arrangement& arrangement_;
  state::Calendar_State& calendar_;
  std::vector<std::shared_ptr<Frm_Balloon>> balloons_;
};

}  // namespace tooltips
