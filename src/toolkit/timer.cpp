#include "toolkit/timer.h"

#include <utility>

#include "toolkit/backend.h"

namespace toolkit {

Timer::Timer(Backend& backend, std::string name, int interval)
    : Name(std::move(name)), Interval(interval), backend_(backend) {}

Timer::~Timer() { Disable(); }

void Timer::Enable() {
  if (enabled_) return;
  enabled_ = true;
  backend_.Start_Timer(*this);
}

void Timer::Disable() {
  if (!enabled_) return;
  enabled_ = false;
  backend_.Stop_Timer(*this);
}

}  // namespace toolkit
