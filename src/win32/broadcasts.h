// What the system tells all top-level windows. The calendar's own window hears none of it once it lies in the shell's
// window, so that one hidden window hears it for all.
#pragma once

#include "win32/hidden_window.h"
#include "win32/window_context.h"

namespace win32 {

class Broadcasts final : private Hidden_Window {
 public:
  explicit Broadcasts(Window_Context& context)
      : Hidden_Window(context.Instance, context.Guard, "Meridex_Broadcasts", ""), context_(context) {}
  ~Broadcasts() = default;

 private:
  /// Passes a change of the system's colours or of its style on to all windows. The work area, the screen and the time
  /// are looked at by the calendar's tick, and need no word of their change.
  bool Message(UINT message, WPARAM w) override;

  Window_Context& context_;
};

}  // namespace win32
