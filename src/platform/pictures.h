// Pictures: decoded from files, or made pixel by pixel.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace platform {

/// The colour of a pixel outside a picture.
constexpr int no_pixel = -1;

/// A picture in memory, as the windows show it.
class Picture {
 public:
  virtual ~Picture() = default;

  [[nodiscard]] virtual int Width() const = 0;   ///< pixels, at least 1
  [[nodiscard]] virtual int Height() const = 0;  ///< pixels, at least 1

  /// The colour of a pixel, red in the low byte, then green, then blue; no_pixel outside the picture.
  [[nodiscard]] virtual int Pixel(int x, int y) const = 0;
};

using Shared_Picture = std::shared_ptr<const Picture>;

class Pictures {
 public:
  virtual ~Pictures() = default;

  /// Decodes a JPEG and writes it as a Windows bitmap of 24 bits a pixel. Throws error 53 if the picture isn't there,
  /// 481 if it is no JPEG that can be decoded, 75 or 61 if the bitmap can't be written; no bitmap is left then.
  virtual void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) = 0;

  /// Decodes a JPEG or a Windows bitmap. Throws error 53 if the file isn't there, 75 if it can't be read, 481 if it is
  /// no picture that can be decoded.
  virtual Shared_Picture Load(const std::string& path) = 0;

  /// Makes a picture of width by height pixels, each at least 1; `pixel` returns the colour of each as Picture::Pixel
  /// does.
  virtual Shared_Picture Make(int width, int height, const std::function<int(int x, int y)>& pixel) = 0;
};

}  // namespace platform
