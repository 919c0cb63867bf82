// The event loop over the virtual time: a wait moves time on, and what falls due are the events. Like the guard of the
// system's loop it is the one place that catches what the program's handlers throw.
#pragma once

#include <functional>
#include <optional>

#include "memory/virtual_time.h"
#include "platform/event_loop.h"

namespace memory {

/// Thrown by a wait of the program that goes on beyond the moment set by Set_Patience: it would never end by itself.
struct Endless_Wait {};

class Memory_Loop : public platform::Event_Loop {
 public:
  explicit Memory_Loop(Virtual_Time& time) : time_(time) {}

  void Wait_Events(std::int64_t micros) override;
  void Quit() override { quitting_ = true; }

  /// Runs a handler of the program. A Run_Error that it throws ends the program, whatever function waits around it.
  /// Throws Program_Quit as soon as the program is to end.
  void Dispatch(const std::function<void()>& handler);

  /// Serves events for `micros` microseconds, as an open message box does. Throws Program_Quit.
  void Serve(std::int64_t micros);

  [[nodiscard]] bool Quitting() const { return quitting_; }

  /// The number of the error that ends the program, if one does.
  [[nodiscard]] std::optional<int> Failure() const { return failure_; }

  /// A new program starts: forgets how the last one ended.
  void Reset();

  /// Waits of the program beyond this moment, in microseconds of Virtual_Time::Elapsed, throw Endless_Wait.
  void Set_Patience(std::int64_t end) { patience_ = end; }

 private:
  void Check_Quit() const;

  Virtual_Time& time_;
  bool quitting_ = false;
  std::optional<int> failure_;
  std::optional<std::int64_t> patience_;
};

}  // namespace memory
