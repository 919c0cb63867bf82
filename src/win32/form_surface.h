// What a form's window paints itself: its controls without windows of their own, and which of them have to be painted
// anew.
#pragma once

#include <vector>

#include "toolkit/form.h"
#include "win32/window_context.h"

namespace win32 {

class Form_Surface {
 public:
  Form_Surface(const toolkit::Form& form, Window_Context& context) : form_(form), context_(context) {}

  /// The window has been made.
  void Begin(HWND window);

  /// A hidden window is painted as a whole when it is shown.
  void Set_Shown(bool shown) { shown_ = shown; }

  /// A property of a control that it may be painting has changed.
  void Changed(const toolkit::Control& control, toolkit::Aspect aspect);

  void Repaint_All() { all_marked_ = shown_; }

  /// Tells the system what has to be painted.
  void Settle() {
    if (all_marked_ || !marks_.empty()) Settle_Marks();
  }

  void Paint();

 private:
  Painted_Control* Painted(const toolkit::Control& control);
  void Update(const toolkit::Control& control, Painted_Control& painted, bool repaint);
  void Mark(Painted_Control& painted);
  void Mark(const RECT& place);
  void Settle_Marks();

  const toolkit::Form& form_;
  Window_Context& context_;
  HWND window_ = nullptr;
  Painted_List painted_;
  std::vector<RECT> marks_;  // pixels of the client area
  bool all_marked_ = false;
  bool shown_ = false;
};

}  // namespace win32
