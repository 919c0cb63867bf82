// The message loop of the one thread.
#pragma once

#include <cstdint>

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

}  // namespace platform
