// A timer of a window: ticks while it is enabled.
#pragma once

#include <functional>
#include <string>

#include "toolkit/property.h"

namespace toolkit {

class Backend;

class Timer {
 public:
  /// Created disabled. `interval` in milliseconds, above 0.
  Timer(Backend& backend, std::string name, int interval);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();

  const std::string Name;
  const int Interval;
  std::function<void()> On_Tick;

  [[nodiscard]] bool Enabled() const { return enabled_; }

  /// The first tick comes one interval after the enabling.
  void Enable();
  void Disable();

 private:
  Backend& backend_;
  bool enabled_ = false;
};

}  // namespace toolkit
