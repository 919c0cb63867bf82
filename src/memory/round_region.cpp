#include "memory/round_region.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace memory {

namespace {

/// How many pixels a corner cuts off at each end of a row; `row` counts from the top or the bottom, 0 for the
/// outermost.
int Indent(int row, double radius) {
  const double up = radius - (row + 0.5);  // from the circle's centre to the middle of the row
  return up <= 0 ? 0 : static_cast<int>(std::lround(radius - std::sqrt(radius * radius - up * up)));
}

}  // namespace

toolkit::Region Round_Region(int width, int height, int corner) {
  const int right = width - 1;
  const int bottom = height - 1;
  const double radius = std::min({corner, right, bottom}) / 2.0;
  std::vector<toolkit::Pixel_Rect> rows;
  for (int row = 0; row < bottom; ++row) {
    const int indent = Indent(std::min(row, bottom - 1 - row), radius);
    rows.push_back({indent, row, right - indent, row + 1});
  }
  return toolkit::Region(std::move(rows));
}

}  // namespace memory
