// The program's own work on its windows, such as settling them. The system may hand in another thread's message in the middle
// of it, whose handler must not destroy a window then.
#pragma once

#include "win32/windows_api.h"

namespace win32 {

class Work_On_Windows {
 public:
  /// While one lives, such work is under way.
  class Step {
   public:
    explicit Step(Work_On_Windows& work) : work_(work) { ++work_.steps_; }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step() { --work_.steps_; }

   private:
    Work_On_Windows& work_;
  };

  /// Called for each request to close. In the middle of work it waits its turn: it is posted to the window once more. Returns
  /// true if that was done.
  [[nodiscard]] bool Put_Off_Close(HWND window) const {
    if (steps_ == 0) return false;
    PostMessageA(window, WM_CLOSE, 0, 0);
    return true;
  }

 private:
  int steps_ = 0;
};

}  // namespace win32
