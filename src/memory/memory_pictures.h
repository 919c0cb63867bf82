// Pictures of the in-memory platform. It knows one kind of JPEG: of a single colour, with size and colour in a comment
// between the marks with which every JPEG starts and ends.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/pictures.h"

namespace memory {

struct Plain_Picture {
  int Width = 0, Height = 0;         ///< pixels
  int Red = 0, Green = 0, Blue = 0;  ///< 0 to 255
};

/// The bytes of such a JPEG, of any size: even one that can't be decoded.
std::string Jpeg_Of(const Plain_Picture& picture);

class Memory_Pictures : public platform::Pictures {
 public:
  explicit Memory_Pictures(platform::Files& files) : files_(files) {}

  /// Throws error 481 too for a picture of more than 65,500 pixels a side or 100 million in all.
  void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) override;

  /// Of bitmaps it reads only those of 24 bits a pixel that it writes itself; the picture has the colour of the first
  /// pixel in the file.
  platform::Shared_Picture Load(const std::string& path) override;
  platform::Shared_Picture Make(int width, int height, const std::function<int(int x, int y)>& pixel) override;

 private:
  [[nodiscard]] std::string Read_Picture(const std::string& path) const;
  void Write_Bitmap(const Plain_Picture& picture, const std::string& path);

  platform::Files& files_;
};

}  // namespace memory
