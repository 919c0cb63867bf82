// The window that is active, and stays so to the program while the system's own boxes and file dialogs are open over it.
#pragma once

#include <algorithm>

#include "toolkit/form.h"
#include "win32/window_context.h"

namespace win32 {

/// The first box that opens notes it, for as long as that is open.
class Behind_Box {
 public:
  Behind_Box(Window_Context& context, Program_Window* active)
      : context_(context), first_(context.Behind_Box == nullptr && active != nullptr) {
    if (first_) context_.Behind_Box = active;
  }
  Behind_Box(const Behind_Box&) = delete;
  Behind_Box& operator=(const Behind_Box&) = delete;
  ~Behind_Box() {
    if (first_) context_.Behind_Box = nullptr;
  }

 private:
  Window_Context& context_;
  const bool first_;
};

/// Makes a window active again that was so before a box, if it is still there. The system hands the activity to the box's
/// owner, and to nobody where that is disabled.
inline void Give_Back_To(const Window_Context& context, const Program_Window* window) {
  const auto& all = context.Windows.All();
  if (std::find(all.begin(), all.end(), window) == all.end()) return;
  toolkit::Form& form = window->Form();
  if (form.Visible()) form.Activate();
}

}  // namespace win32
