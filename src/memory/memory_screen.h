// A screen of any size at 96 dots an inch, with the work area that a test gives it.
#pragma once

#include <optional>

#include "platform/screen.h"

namespace memory {

constexpr double twips_per_pixel = 15;

class Memory_Screen : public platform::Screen {
 public:
  platform::Pixel_Area Bounds() override { return {0, 0, width_, height_}; }
  platform::Pixel_Area Work_Area() override { return work_area_.value_or(Bounds()); }
  double Twips_Per_Pixel_X() override { return twips_per_pixel; }
  double Twips_Per_Pixel_Y() override { return twips_per_pixel; }

  /// Pixels.
  void Set_Size(int width, int height) {
    width_ = width;
    height_ = height;
  }

  /// Until it is set the work area is the whole screen.
  void Set_Work_Area(const platform::Pixel_Area& area) { work_area_ = area; }

 private:
  int width_ = 1280, height_ = 1024;
  std::optional<platform::Pixel_Area> work_area_;
};

}  // namespace memory
