// JPEG pictures, decoded by the system.
#pragma once

#include "platform/pictures.h"

namespace platform::win32 {

class Jpeg_Pictures final : public Pictures {
 public:
  void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) override;
};

}  // namespace platform::win32
