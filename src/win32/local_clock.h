// The system's local time.
#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace win32 {

/// Asks after the time zone once a second at most: on some systems that is the dearest part of a tick.
class Local_Clock final : public platform::Clock {
 public:
  basic::Moment Now() override;

 private:
  std::uint64_t second_ = 0;  // of the last call, by the system's own count
  basic::Moment start_;       // of that second
};

}  // namespace win32
