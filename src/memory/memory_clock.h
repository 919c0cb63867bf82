// The wall clock of the virtual time.
#pragma once

#include "memory/virtual_time.h"
#include "platform/clock.h"

namespace memory {

class Memory_Clock : public platform::Clock {
 public:
  explicit Memory_Clock(const Virtual_Time& time) : time_(time) {}

  basic::Moment Now() override { return time_.Now(); }

 private:
  const Virtual_Time& time_;
};

}  // namespace memory
