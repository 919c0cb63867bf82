// The wait inside a handler, in which events are served.
#pragma once

#include "platform/clock.h"
#include "platform/event_loop.h"

namespace calendar {

/// Serves events until the count of seconds since midnight has reached its present value plus `seconds`. The count falls
/// back to 0 at midnight: a wait that midnight overtakes goes on until that time of the next day, and one whose end lies
/// beyond the last moment of a day never ends.
void TimeOut(platform::Event_Loop& loop, platform::Clock& clock, float seconds);

}  // namespace calendar
