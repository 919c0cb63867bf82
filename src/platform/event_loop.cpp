#include "platform/event_loop.h"

#include <cmath>

namespace platform {

void Waits::TimeOut(float seconds) {
  const std::int64_t end = clock_.Now().Micros + std::llround(static_cast<double>(seconds) * 1e6);
  for (std::int64_t left = end - clock_.Now().Micros; left > 0; left = end - clock_.Now().Micros)
    loop_.Wait_Events(left);
}

}  // namespace platform
