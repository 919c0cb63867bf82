// JPEG pictures, decoded by the system.
#pragma once

#include "platform/pictures.h"

namespace win32 {

class Jpeg_Pictures final : public platform::Pictures {
 public:
  void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) override;
};

}  // namespace win32
