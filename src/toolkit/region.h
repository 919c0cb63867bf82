// A region of whole pixels, as a window is cut out of. It is a plain value; a backend turns it into the system's own.
#pragma once

#include <vector>

namespace toolkit {

/// Left and top lie inside the rectangle, right and bottom just outside.
struct Pixel_Rect {
  int Left = 0, Top = 0, Right = 0, Bottom = 0;

  [[nodiscard]] bool Empty() const { return Left >= Right || Top >= Bottom; }
  friend bool operator==(const Pixel_Rect&, const Pixel_Rect&) = default;
};

class Region {
 public:
  Region() = default;

  /// All the rectangles together; empty ones add nothing.
  explicit Region(std::vector<Pixel_Rect> rects);

  /// What of this region isn't in the other.
  [[nodiscard]] Region Without(const Region& other) const;

  /// The region in its one canonical form: bands from top to bottom, within a band from left to right, neighbours
  /// joined, nothing twice.
  [[nodiscard]] const std::vector<Pixel_Rect>& Rects() const { return rects_; }

  friend bool operator==(const Region&, const Region&) = default;

 private:
  void Add_Band(const std::vector<Pixel_Rect>& band);

  std::vector<Pixel_Rect> rects_;
  std::size_t last_band_ = 0;  // where the lowest band starts in rects_
};

}  // namespace toolkit
