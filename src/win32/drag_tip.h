// The tip beside the thumb of a slider that is being dragged.
#pragma once

#include "win32/tip_tool.h"

namespace win32 {

class Drag_Tip {
 public:
  explicit Drag_Tip(Common_Controls& controls);

  /// Shows the text at a place of the screen, which is the tip's upper left; an empty one isn't shown.
  void Show(HWND owner, POINT on_screen, const std::string& text);
  void Hide();

 private:
  Tip_Tool tool_;
  bool shown_ = false;
};

}  // namespace win32
