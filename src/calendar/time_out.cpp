#include "calendar/time_out.h"

#include <cmath>

namespace calendar {

void TimeOut(platform::Event_Loop& loop, platform::Clock& clock, float seconds) {
  const std::int64_t end = clock.Now().Micros + std::llround(static_cast<double>(seconds) * 1e6);
  for (std::int64_t left = end - clock.Now().Micros; left > 0; left = end - clock.Now().Micros) loop.Wait_Events(left);
}

}  // namespace calendar
