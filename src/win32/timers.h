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

  /// Serves a tick from the program's own queue without the system's rounds through window and class, which cost more than
  /// most ticks do. Returns false if the message is something else.
  bool Take_Tick(const MSG& message);

 private:
  bool Message(UINT message, WPARAM w) override;

  struct Running {
    toolkit::Timer* Timer;
    UINT_PTR Number;
  };

  std::vector<Running> running_;
  // Never used twice: a tick that is still in the queue when its timer has been stopped must not reach a later one.
  UINT_PTR last_number_ = 0;
};

}  // namespace win32
