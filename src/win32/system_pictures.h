// Pictures of files, decoded by the system, and pictures made pixel by pixel.
#pragma once

#include "platform/pictures.h"

namespace win32 {

class System_Pictures final : public platform::Pictures {
 public:
  void Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) override;
  platform::Shared_Picture Load(const std::string& path) override;
  platform::Shared_Picture Make(int width, int height, const std::function<int(int x, int y)>& pixel) override;
};

}  // namespace win32
