// Between the twips of the toolkit and the pixels of the screen.
#pragma once

#include "toolkit/geometry.h"
#include "win32/windows_api.h"

namespace win32 {

struct Scale {
  double X = 15, Y = 15;  ///< twips per pixel, across and down
  int Dpi = 96;           ///< dots an inch, down

  /// That of the display; the same for as long as the process runs.
  static Scale Of_Screen();

  [[nodiscard]] int Pixels_X(double twips) const { return toolkit::Round_To_Even(twips / X); }
  [[nodiscard]] int Pixels_Y(double twips) const { return toolkit::Round_To_Even(twips / Y); }

  /// Each edge rounded by itself, so that neighbours that touch in twips touch in pixels.
  [[nodiscard]] RECT Pixels(const toolkit::Bounds& twips) const {
    return {Pixels_X(twips.Left), Pixels_Y(twips.Top), Pixels_X(twips.Left + twips.Width),
            Pixels_Y(twips.Top + twips.Height)};
  }
};

}  // namespace win32
