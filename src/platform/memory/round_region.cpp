#include "platform/memory/round_region.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace platform::memory {

namespace {

/// How far the circle's edge stands in from the side, in the row that lies `row` rows inside the top or the bottom.
int Indent(int row, double radius) {
  const double up = radius - (row + 0.5);  // from the circle's centre to the middle of the row
  return up <= 0 ? 0 : static_cast<int>(std::lround(radius - std::sqrt(radius * radius - up * up)));
}

}  // namespace

toolkit::Region Round_Region(int width, int height, int corner) {
  const double radius = std::min({corner, width, height}) / 2.0;
  std::vector<toolkit::Pixel_Rect> rows;
  for (int row = 0; row < height; ++row) {
    const int indent = Indent(std::min(row, height - 1 - row), radius);
    rows.push_back({indent, row, width - indent, row + 1});
  }
  return toolkit::Region(std::move(rows));
}

}  // namespace platform::memory
