#include "win32/dib_picture.h"

#include "basic/run_error.h"
#include "win32/graphics.h"

namespace win32 {

namespace {

constexpr std::uint32_t low_byte = 0xFF;

BITMAPINFO Format_Of(int width, int height) {
  BITMAPINFO format = {};
  format.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  return format;
}

/// A colour's red and blue change places between the toolkit and the system's pixels.
std::uint32_t With_Ends_Swapped(std::uint32_t colour) {
  return (colour >> 16 & low_byte) | (colour & low_byte << 8) | (colour & low_byte) << 16;
}

}  // namespace

Dib_Picture::Dib_Picture(int width, int height) : width_(width), height_(height) {
  const BITMAPINFO format = Format_Of(width, height);
  void* bits = nullptr;
  if (width > 0 && height > 0) bitmap_.Reset(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap_) throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
  pixels_ = static_cast<std::uint32_t*>(bits);
}

std::uint32_t* Dib_Picture::At(int x, int y) const {
  return pixels_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
}

int Dib_Picture::Pixel(int x, int y) const {
  if (x < 0 || x >= width_ || y < 0 || y >= height_) return -1;
  return static_cast<int>(With_Ends_Swapped(*At(x, y)));
}

void Dib_Picture::Set_Pixel(int x, int y, int colour) {
  *At(x, y) = With_Ends_Swapped(static_cast<std::uint32_t>(colour));
}

void Dib_Picture::Copy_From(HBITMAP bitmap) {
  BITMAPINFO format = Format_Of(width_, height_);
  const Context_Owner context(CreateCompatibleDC(nullptr));
  GdiFlush();
  const auto rows = static_cast<UINT>(height_);
  if (GetDIBits(context.Get(), bitmap, 0, rows, pixels_, &format, DIB_RGB_COLORS) != height_)
    throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
}

void Dib_Picture::Draw(HDC context, const RECT& place) const {
  // Systems that can't blend the pixels that fall together leave them out.
  SetStretchBltMode(context, COLORONCOLOR);
  SetStretchBltMode(context, HALFTONE);
  SetBrushOrgEx(context, 0, 0, nullptr);
  On_Context([&](HDC source) {
    StretchBlt(context, place.left, place.top, place.right - place.left, place.bottom - place.top, source, 0, 0, width_,
               height_, SRCCOPY);
  });
}

void Dib_Picture::On_Context(const std::function<void(HDC context)>& draw) const {
  const Context_Owner context(CreateCompatibleDC(nullptr));
  const Selection selected(context.Get(), bitmap_.Get());
  draw(context.Get());
  GdiFlush();
}

}  // namespace win32
