// The time of the in-memory platform. It stands still but for the waits that move it on, and what falls due on the way
// runs at its moment. The wall clock goes along with it and can be set without anything falling due by that.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <tuple>

#include "basic/serial_day.h"

namespace memory {

constexpr std::int64_t micros_of_a_second = 1'000'000;
constexpr std::int64_t micros_of_a_day = 86'400 * micros_of_a_second;

class Virtual_Time {
 public:
  using Action = std::function<void()>;

  /// Names one action that waits for its time.
  struct Ticket {
    std::int64_t Due = 0;     ///< as Elapsed tells the time
    std::int64_t Number = 0;  ///< in the order of entry, from 1 on

    friend bool operator<(const Ticket& a, const Ticket& b) {
      return std::tie(a.Due, a.Number) < std::tie(b.Due, b.Number);
    }
  };

  /// Microseconds since the beginning. They only ever grow.
  [[nodiscard]] std::int64_t Elapsed() const { return elapsed_; }

  /// What the wall clock shows.
  [[nodiscard]] basic::Moment Now() const;
  void Set_Now(const basic::Moment& moment);

  /// The action runs once when `due` is reached; those of one moment run in their order of entry.
  Ticket Schedule(std::int64_t due, Action action);

  /// An action that has run or was cancelled before is no longer there, and nothing happens.
  void Cancel(const Ticket& ticket);

  /// Runs the next action that is due up to and including `end`. If there is none, moves on to `end` and returns false. An
  /// action may itself move time on, past `end` too.
  bool Step(std::int64_t end);

  /// Runs all that is due up to and including `end`, and stands there, or later after a longer wait within.
  void Run_Until(std::int64_t end);

 private:
  std::int64_t elapsed_ = 0;
  std::int64_t wall_at_beginning_ = 0;  // microseconds since day 0
  std::int64_t last_number_ = 0;
  std::map<Ticket, Action> waiting_;
};

}  // namespace memory
