// The face of a push button with a picture above its caption, which the system doesn't paint.
#pragma once

#include <string>

#include "platform/stock_picture.h"
#include "win32/graphics.h"
#include "win32/painted_control.h"

namespace win32 {

struct Button_Face {
  platform::Stock_Picture Picture;
  const std::string& Caption;
  bool Default;  ///< the Enter key presses it
  COLORREF Ground;
};

/// Draws the button as the system asks for it: pressed, disabled or with the focus.
void Draw_Button(const DRAWITEMSTRUCT& item, const Button_Face& face, const Face& font, const Drawing_Tools& tools);

}  // namespace win32
