// The event loop over the virtual time: waiting is what moves it, and what falls due is what happens. It is also the one
// guard around the program's handlers, as the system's loop has one.
#pragma once

#include <functional>
#include <optional>

#include "memory/virtual_time.h"
#include "platform/event_loop.h"

namespace memory {

/// Thrown when a wait of the program has gone on beyond all measure and would never end by itself.
struct Endless_Wait {};

class Memory_Loop : public platform::Event_Loop {
 public:
  explicit Memory_Loop(Virtual_Time& time) : time_(time) {}

  void Wait_Events(std::int64_t micros) override;
  void Quit() override { quitting_ = true; }

  /// Runs a handler of the program. An error that it lets out ends the program, whatever it was called within. Throws
  /// Program_Quit as soon as the program is to end.
  void Dispatch(const std::function<void()>& handler);

  /// Serves events for that long, as an open message box does. Throws Program_Quit.
  void Serve(std::int64_t micros);

  [[nodiscard]] bool Quitting() const { return quitting_; }

  /// The number of the error that ends the program, if one does.
  [[nodiscard]] std::optional<int> Failure() const { return failure_; }

  /// A new program begins.
  void Reset();

  /// Waits of the program beyond this moment throw Endless_Wait.
  void Set_Patience(std::int64_t end) { patience_ = end; }

 private:
  void Check_Quit() const;

  Virtual_Time& time_;
  bool quitting_ = false;
  std::optional<int> failure_;
  std::optional<std::int64_t> patience_;
};

}  // namespace memory
