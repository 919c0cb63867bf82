// The system's local time.
#pragma once

#include "basic/serial_day.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;

  virtual basic::Moment Now() = 0;
};

}  // namespace platform
