// Pictures of the in-memory platform. It knows one kind of JPEG: of one colour, with its size and colour in a comment
// between the start and the end that every JPEG has.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/pictures.h"

namespace memory {

struct Plain_Picture {
  int Width = 0, Height = 0;         ///< pixels
  int Red = 0, Green = 0, Blue = 0;  ///< 0 to 255
};

/// The bytes of such a JPEG; any size is written, also one that can't be decoded.
std::string Jpeg_Of(const Plain_Picture& picture);

class Memory_Pictures : public platform::Pictures {
 public:
  explicit Memory_Pictures(platform::Files& files) : files_(files) {}

  /// Takes pictures of at most 65,500 pixels a side and 100 million in all.
  void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) override;

  /// Of the bitmaps it takes those of 24 bits a pixel that it writes itself, by the colour of their first pixel.
  platform::Shared_Picture Load(const std::string& path) override;
  platform::Shared_Picture Make(int width, int height, const std::function<int(int x, int y)>& pixel) override;

 private:
  [[nodiscard]] std::string Read_Picture(const std::string& path) const;
  void Write_Bitmap(const Plain_Picture& picture, const std::string& path);

  platform::Files& files_;
};

}  // namespace memory
