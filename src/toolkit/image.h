// Pictures from the program's resources, on a window.
#pragma once

#include "platform/stock_picture.h"
#include "toolkit/control.h"

namespace toolkit {

/// A picture that lies on its window like a label, stretched to its size.
class Image : public Control {
 public:
  using Control::Control;

  Property<platform::Stock_Picture> Picture{*this, Aspect::Appearance, platform::Stock_Picture::None};
};

/// A picture that is kept at its own size; the calendar's are hidden and lend their bitmaps to the menus.
class Picture_Box : public Image {
 public:
  using Image::Image;
};

}  // namespace toolkit
