// The wall clock of the virtual time.
#pragma once

#include "platform/clock.h"
#include "platform/memory/virtual_time.h"

namespace platform::memory {

class Memory_Clock : public Clock {
 public:
  explicit Memory_Clock(const Virtual_Time& time) : time_(time) {}

  basic::Moment Now() override { return time_.Now(); }

 private:
  const Virtual_Time& time_;
};

}  // namespace platform::memory
