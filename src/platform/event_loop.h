// The message loop of the one thread.
#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace platform {

/// Thrown by a wait inside a handler once the program has been told to quit, so that the handler ends too. Only the
/// loop itself catches it.
struct Program_Quit {};

class Event_Loop {
 public:
  virtual ~Event_Loop() = default;

  /// Handles events, then waits for the next one or until `micros` microseconds have passed, whichever comes first.
  /// Returns early whenever it has handled something. Throws Program_Quit once the program has been told to quit.
  ///
  /// **Any handler may run meanwhile: it may unload any window, and may call the function that waits here once more.**
  virtual void Wait_Events(std::int64_t micros) = 0;

  /// Ends the program: the loop returns, and every wait that is under way throws Program_Quit.
  virtual void Quit() = 0;
};

/// A wait inside a handler, during which events are served.
class Waits {
 public:
  Waits(Event_Loop& loop, Clock& clock) : loop_(loop), clock_(clock) {}

  /// Serves events until the seconds since midnight have reached their present value plus `seconds`. They start again
  /// from 0 at midnight: if midnight passes before the wait sees its end, it goes on until that time of the next day;
  /// if the end lies after midnight, the wait never ends. Throws Program_Quit.
  ///
  /// **Any handler may run meanwhile, as in Wait_Events.**
  void TimeOut(float seconds);

 private:
  Event_Loop& loop_;
  Clock& clock_;
};

}  // namespace platform
