// The tip beside the thumb of a slider that is being dragged.
#pragma once

#include <string>

#include "win32/common_controls.h"

namespace win32 {

class Drag_Tip {
 public:
  explicit Drag_Tip(Common_Controls& controls) : controls_(controls) {}

  /// Shows the text at a place of the screen, which is the tip's upper left; an empty one isn't shown.
  void Show(HWND owner, POINT on_screen, const std::string& text);
  void Hide();

 private:
  bool Make(HWND owner);

  Common_Controls& controls_;
  Window_Owner window_;
  HWND owner_ = nullptr;
  bool shown_ = false;
};

}  // namespace win32
