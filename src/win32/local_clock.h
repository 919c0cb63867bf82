// The system's local time.
#pragma once

#include "platform/clock.h"

namespace win32 {

class Local_Clock final : public platform::Clock {
 public:
  basic::Moment Now() override;
};

}  // namespace win32
