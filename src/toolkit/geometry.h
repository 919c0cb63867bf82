// Places and sizes. All of them are kept in twips (1/1440 inch) and in floating point.
#pragma once

#include <algorithm>

namespace toolkit {

enum class Scale_Unit { Twips, Pixels };
enum class Axis { Across, Down };

/// A rectangle in twips.
struct Bounds {
  double Left = 0, Top = 0, Width = 0, Height = 0;

  [[nodiscard]] bool Contains(double x, double y) const {
    return x >= Left && x < Left + Width && y >= Top && y < Top + Height;
  }
  friend bool operator==(const Bounds&, const Bounds&) = default;
};

/// The rounding of a coordinate to a whole number: to the nearest, halves to the even one.
int Round_To_Even(double value);

}  // namespace toolkit
