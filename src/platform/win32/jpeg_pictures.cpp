#include "platform/win32/jpeg_pictures.h"

#include <cstring>
#include <memory>
#include <new>

#include "platform/win32/disk_files.h"
#include "platform/win32/jpeg_decoder.h"
#include "platform/win32/windows_api.h"

namespace platform::win32 {

namespace {

using basic::Error_Number;
using basic::Run_Error;

/// A bitmap file of 24 bits a pixel.
struct Bitmap_File {
  std::size_t Size = 0;
  std::unique_ptr<std::uint8_t[]> Bytes;
};

constexpr std::size_t headers = 54;

void Put_Headers(std::uint8_t* to, std::size_t width, std::size_t height, std::size_t size) {
  BITMAPFILEHEADER file = {};
  file.bfType = 0x4D42;  // "BM"
  file.bfSize = static_cast<DWORD>(size);
  file.bfOffBits = headers;
  BITMAPINFOHEADER info = {};
  info.biSize = sizeof info;
  info.biWidth = static_cast<LONG>(width);
  info.biHeight = static_cast<LONG>(height);
  info.biPlanes = 1;
  info.biBitCount = 24;
  info.biSizeImage = static_cast<DWORD>(size - headers);
  std::memcpy(to, &file, sizeof file);
  std::memcpy(to + sizeof file, &info, sizeof info);
}

Bitmap_File To_Bitmap(std::string_view jpeg) try {
  jpeg::Decoder decoder(jpeg);
  const std::size_t pitch = (decoder.Width() * 3 + 3) / 4 * 4;
  Bitmap_File file;
  file.Size = headers + pitch * decoder.Height();
  file.Bytes = std::make_unique_for_overwrite<std::uint8_t[]>(file.Size);
  Put_Headers(file.Bytes.get(), decoder.Width(), decoder.Height(), file.Size);
  // The bytes that fill a row up are its last: the pixels are written over the rest.
  const std::size_t fill = pitch - decoder.Width() * 3;
  for (std::size_t end = headers + pitch; end <= file.Size; end += pitch) std::memset(&file.Bytes[end - fill], 0, fill);
  decoder.Decode(&file.Bytes[headers], pitch);
  return file;
} catch (const std::bad_alloc&) {
  throw Run_Error(Error_Number::Invalid_Picture);
}

}  // namespace

void Jpeg_Pictures::Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) {
  Disk_Files disk;
  std::string picture;
  disk.Read_Whole(jpeg, picture);
  const Bitmap_File made = To_Bitmap(picture);
  auto output = disk.Create(bitmap);
  const bool whole = output->Write({reinterpret_cast<const char*>(made.Bytes.get()), made.Size}) == made.Size;
  output.reset();
  if (whole) return;
  DeleteFileA(bitmap.c_str());
  throw Run_Error(Error_Number::Disk_Full);
}

}  // namespace platform::win32
