// The system's local time.
#pragma once

#include "platform/clock.h"

namespace platform::win32 {

class Local_Clock final : public Clock {
 public:
  basic::Moment Now() override;
};

}  // namespace platform::win32
