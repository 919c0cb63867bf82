// The shapes of the mouse pointer, and the hourglass that stands for all of them while the program is busy.
#pragma once

#include "toolkit/pointer.h"
#include "win32/windows_api.h"

namespace win32 {

class Pointers {
 public:
  explicit Pointers(HINSTANCE instance) : instance_(instance) {}

  void Show(toolkit::Pointer pointer) const { SetCursor(Shape(pointer)); }

  /// Shows the hourglass at once, or what lies under the pointer asks for.
  void Set_Busy(bool busy);
  [[nodiscard]] bool Busy() const { return busy_; }

 private:
  [[nodiscard]] HCURSOR Shape(toolkit::Pointer pointer) const;

  HINSTANCE instance_;
  bool busy_ = false;
};

}  // namespace win32
