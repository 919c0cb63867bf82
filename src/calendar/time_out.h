// The wait inside a handler, in which events are served.
#pragma once

#include "platform/clock.h"
#include "platform/event_loop.h"

namespace calendar {

/// Serves events until the count of seconds since midnight has reached its present value plus `seconds`. The count falls
/// back to 0 at midnight: a wait begun in the last moment of a day lasts until that time of the next.
void TimeOut(platform::Event_Loop& loop, platform::Clock& clock, float seconds);

}  // namespace calendar
