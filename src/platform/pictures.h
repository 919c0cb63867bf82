// Picture files.
#pragma once

#include <string>

namespace platform {

class Pictures {
 public:
  virtual ~Pictures() = default;

  /// Decodes a JPEG and writes it as a Windows bitmap of 24 bits a pixel. Throws error 53 if the picture isn't there,
  /// 481 if it is no JPEG that can be decoded, 75 or 61 if the bitmap can't be written (none is left then).
  virtual void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) = 0;
};

}  // namespace platform
