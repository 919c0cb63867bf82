#include "win32/system_pictures.h"

#include <memory>

#include "win32/dib_picture.h"
#include "win32/disk_files.h"
#include "win32/picture_decoder.h"

namespace win32 {

namespace {

using basic::Error_Number;
using basic::Run_Error;

[[noreturn]] void Throw_Invalid() { throw Run_Error(Error_Number::Invalid_Picture); }

BITMAP Shape_Of(HBITMAP bitmap) {
  BITMAP shape = {};
  if (GetObjectA(bitmap, sizeof shape, &shape) == 0) Throw_Invalid();
  return shape;
}

/// A bitmap file of 24 bits a pixel, rows from the bottom up.
struct Bitmap_File {
  static constexpr DWORD headers = 54;

  explicit Bitmap_File(HBITMAP bitmap) {
    const BITMAP shape = Shape_Of(bitmap);
    const auto pitch = static_cast<DWORD>((shape.bmWidth * 3 + 3) / 4 * 4);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = shape.bmWidth;
    info.bmiHeader.biHeight = shape.bmHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biSizeImage = pitch * static_cast<DWORD>(shape.bmHeight);
    Size = headers + info.bmiHeader.biSizeImage;
    Bytes = std::make_unique_for_overwrite<char[]>(Size);
    Put_Headers(info.bmiHeader);
    const Context_Owner context(CreateCompatibleDC(nullptr));
    if (GetDIBits(context.Get(), bitmap, 0, static_cast<UINT>(shape.bmHeight), Bytes.get() + headers, &info,
                  DIB_RGB_COLORS) != shape.bmHeight)
      Throw_Invalid();
  }

  DWORD Size = 0;
  std::unique_ptr<char[]> Bytes;

 private:
  void Put_Headers(const BITMAPINFOHEADER& info) {
    // Byte by byte in front of the second header, whose place isn't aligned.
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;  // "BM"
    file.bfSize = Size;
    file.bfOffBits = headers;
    CopyMemory(Bytes.get(), &file, sizeof file);
    CopyMemory(Bytes.get() + sizeof file, &info, sizeof info);
  }
};

/// The bytes of a picture's file: what can't be read for whatever reason is no more than that to the caller.
std::string Read_Picture(const std::string& path) {
  std::string file;
  try {
    Disk_Files().Read_Whole(path, file);
  } catch (const Run_Error& error) {
    const auto number = static_cast<Error_Number>(error.Number());
    const bool missing = number == Error_Number::File_Not_Found || number == Error_Number::Path_Not_Found;
    throw Run_Error(missing ? Error_Number::File_Not_Found : Error_Number::Path_File_Access);
  }
  return file;
}

}  // namespace

void System_Pictures::Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) {
  Disk_Files disk;
  std::string file;
  disk.Read_Whole(jpeg, file);
  if (!Is_Jpeg(file)) Throw_Invalid();
  const Decoded_Picture picture(file);
  const Bitmap_File made(picture.Bitmap());
  auto output = disk.Create(bitmap);
  const bool whole = output->Write({made.Bytes.get(), made.Size}) == made.Size;
  output.reset();
  if (whole) return;
  DeleteFileA(bitmap.c_str());
  throw Run_Error(Error_Number::Disk_Full);
}

platform::Shared_Picture System_Pictures::Load(const std::string& path) {
  const Decoded_Picture decoded(Read_Picture(path));
  const BITMAP shape = Shape_Of(decoded.Bitmap());
  auto picture = std::make_shared<Dib_Picture>(shape.bmWidth, shape.bmHeight);
  picture->Copy_From(decoded.Bitmap());
  return picture;
}

platform::Shared_Picture System_Pictures::Make(int width, int height, const std::function<int(int x, int y)>& pixel) {
  auto picture = std::make_shared<Dib_Picture>(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) picture->Set_Pixel(x, y, pixel(x, y));
  return picture;
}

}  // namespace win32
