// The time of the in-memory platform. It moves only when something waits, and what falls due on the way runs at its
// moment. The wall clock moves with it and can be set, which makes nothing fall due.
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

  /// Identifies an action that waits for its time.
  struct Ticket {
    std::int64_t Due = 0;     ///< microseconds, as Elapsed counts them
    std::int64_t Number = 0;  ///< in the order of entry, from 1 on

    friend bool operator<(const Ticket& a, const Ticket& b) {
      return std::tie(a.Due, a.Number) < std::tie(b.Due, b.Number);
    }
  };

  /// Microseconds since the start; they never go back.
  [[nodiscard]] std::int64_t Elapsed() const { return elapsed_; }

  /// The time on the wall clock.
  [[nodiscard]] basic::Moment Now() const;
  void Set_Now(const basic::Moment& moment);

  /// Runs the action once, when Elapsed reaches `due`; actions of the same moment run in the order of these calls.
  Ticket Schedule(std::int64_t due, Action action);

  /// Does nothing if the action has already run or been cancelled.
  void Cancel(const Ticket& ticket);

  /// Runs the next action that is due up to and including `end`. If there is none, moves on to `end` and returns false.
  /// An action may itself move time on, past `end` too.
  bool Step(std::int64_t end);

  /// Runs all that is due up to and including `end`. Time then is `end`, or later if an action waited for longer.
  void Run_Until(std::int64_t end);

 private:
  std::int64_t elapsed_ = 0;
  std::int64_t wall_at_beginning_ = 0;  // microseconds since day 0
  std::int64_t last_number_ = 0;
  std::map<Ticket, Action> waiting_;
};

}  // namespace memory
