// Images and picture boxes, as their window paints them.
#pragma once

#include "toolkit/image.h"
#include "win32/painted_control.h"

namespace win32 {

class Painted_Image final : public Painted_Control {
 public:
  explicit Painted_Image(const toolkit::Image& image) : image_(image) {}

  void Draw(HDC context, const Drawing_Tools& tools) override;

 private:
  const toolkit::Image& image_;
};

class Painted_Picture_Box final : public Painted_Control {
 public:
  explicit Painted_Picture_Box(const toolkit::Picture_Box& box) : box_(box) {}

  void Draw(HDC context, const Drawing_Tools& tools) override;

 private:
  void Draw_Picture(HDC context, Stock_Pictures& pictures, POINT corner) const;

  const toolkit::Picture_Box& box_;
};

}  // namespace win32
