// The samples of a picture's three parts, put together to coloured pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform::win32::jpeg {

/// The samples of one part (lightness, or one of the two colour differences), decoded whole.
struct Plane {
  std::size_t Pitch = 0;              ///< bytes from row to row
  std::size_t Width = 0, Height = 0;  ///< samples that belong to the picture
  unsigned Across = 1, Down = 1;      ///< pixels that one sample covers
  std::vector<std::uint8_t> Samples;
};

/// Writes rows of pixels from planes that cover the picture with one sample for one or more pixels.
class Colour_Rows {
 public:
  /// One plane for grey, or three; `coded` if these are lightness and colour differences, not red, green and blue.
  Colour_Rows(const std::vector<Plane>& planes, std::size_t width, bool coded);

  /// Row y from the top: three bytes a pixel, blue first.
  void Write(std::size_t y, std::uint8_t* to);

 private:
  const std::uint8_t* Stretch(const Plane& plane, std::size_t y, std::vector<std::uint8_t>& room);
  void Mix(const std::uint8_t* lightness, const std::uint8_t* blue, const std::uint8_t* red);

  const std::vector<Plane>& planes_;
  std::size_t width_;
  bool coded_;
  std::vector<std::int16_t> sums_;                     // of two neighbouring rows, weighted
  std::vector<std::uint8_t> stretched_[3], mixed_[3];  // one row each
};

}  // namespace platform::win32::jpeg
