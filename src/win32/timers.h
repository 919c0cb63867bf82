// The timers of the program, as timers of one hidden window: they tick under menus and message boxes too.
#pragma once

#include <vector>

#include "toolkit/timer.h"
#include "win32/hidden_window.h"

namespace win32 {

class Timers final : private Hidden_Window {
 public:
  Timers(HINSTANCE instance, Guard& guard) : Hidden_Window(instance, guard, "Meridex_Timers", "") {}
  ~Timers() = default;

  void Start(toolkit::Timer& timer);
  void Stop(toolkit::Timer& timer);

 private:
  bool Message(UINT message, WPARAM w) override;

  std::vector<toolkit::Timer*> running_;
};

}  // namespace win32
