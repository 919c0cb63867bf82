// The message loop of the one thread.
#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace platform {

/// Thrown out of a wait inside a handler once the program has been told to quit, so that the handler ends with it.
/// Nothing but the loop itself catches it.
struct Program_Quit {};

class Event_Loop {
 public:
  virtual ~Event_Loop() = default;

  /// Handles events, then waits for the next one or until `micros` microseconds have passed, whichever comes first.
  /// Returns early whenever it has handled something. Throws Program_Quit once the program has been told to quit.
  virtual void Wait_Events(std::int64_t micros) = 0;

  /// Ends the program: Run returns, and waits that are under way throw.
  virtual void Quit() = 0;
};

/// The wait inside a handler, in which events are served.
class Waits {
 public:
  Waits(Event_Loop& loop, Clock& clock) : loop_(loop), clock_(clock) {}

  /// Serves events until the count of seconds since midnight has reached its present value plus `seconds`. The count falls
  /// back to 0 at midnight: a wait that midnight overtakes goes on until that time of the next day, and one whose end lies
  /// beyond the last moment of a day never ends. Throws Program_Quit.
  void TimeOut(float seconds);

 private:
  Event_Loop& loop_;
  Clock& clock_;
};

}  // namespace platform
