// The screen: its size, its density and the part of it that docked bars leave free.
#pragma once

#include "basic/run_error.h"

namespace platform {

struct Pixel_Area {
  int Left = 0, Top = 0, Width = 0, Height = 0;  ///< pixels

  friend bool operator==(const Pixel_Area&, const Pixel_Area&) = default;
};

/// Thrown where the user's desktop needs places beyond 16 bits of twips and the user hasn't consented to them. It is an
/// overflow like any other, but one for which there is a remedy.
class Work_Area_Too_Large : public basic::Run_Error {
 public:
  Work_Area_Too_Large() noexcept : Run_Error(basic::Error_Number::Overflow) {}
};

class Screen {
 public:
  virtual ~Screen() = default;

  /// The primary screen.
  virtual Pixel_Area Bounds() = 0;

  /// The work area of the primary screen, asked from the system at each call.
  virtual Pixel_Area Work_Area() = 0;

  /// Twips per pixel across and down: 15 at 96 dots an inch.
  virtual double Twips_Per_Pixel_X() = 0;
  virtual double Twips_Per_Pixel_Y() = 0;
};

}  // namespace platform
