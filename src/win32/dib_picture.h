// A picture in memory, of 32 bits a pixel.
#pragma once

#include <functional>

#include "platform/pictures.h"
#include "win32/handle.h"

namespace win32 {

class Dib_Picture final : public platform::Picture {
 public:
  /// Throws error 481 for a size that the system can't make.
  Dib_Picture(int width, int height);

  [[nodiscard]] int Width() const override { return width_; }
  [[nodiscard]] int Height() const override { return height_; }
  [[nodiscard]] int Pixel(int x, int y) const override;

  void Set_Pixel(int x, int y, int colour);

  /// Takes all pixels from a bitmap of the same size.
  void Copy_From(HBITMAP bitmap);

  /// Draws it, stretched to the place.
  void Draw(HDC context, const RECT& place) const;

  /// Calls for drawing on it.
  void On_Context(const std::function<void(HDC context)>& draw) const;

 private:
  [[nodiscard]] std::uint32_t* At(int x, int y) const;

  const int width_, height_;
  std::uint32_t* pixels_ = nullptr;  // from the top down; they go with the bitmap
  Bitmap_Owner bitmap_;
};

}  // namespace win32
