// The local time.
#pragma once

#include "basic/serial_day.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;

  /// The present moment of the local time.
  virtual basic::Moment Now() = 0;
};

}  // namespace platform
