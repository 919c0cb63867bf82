// The drawing of a window: its ground, and its controls that have no windows of their own.
#pragma once

#include "toolkit/form.h"
#include "win32/painted_control.h"

namespace win32 {

class Painter {
 public:
  explicit Painter(const Drawing_Tools& tools) : tools_(tools) {}

  /// Paints what of the window touches the area that `target` is to show; through a back buffer, so that nothing is
  /// seen half done.
  void Paint(HDC target, const RECT& area, const RECT& client, const toolkit::Form& form, const Painted_List& controls);

 private:
  void Draw_All(HDC context, HDC target, const RECT& client, const toolkit::Form& form, const Painted_List& controls);

  Drawing_Tools tools_;
};

}  // namespace win32
