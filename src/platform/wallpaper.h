// The desktop's picture.
#pragma once

#include <string>

namespace platform {

class Wallpaper {
 public:
  virtual ~Wallpaper() = default;

  /// Makes the file the desktop's picture, in the user's profile and on the screen; an empty path takes the picture off.
  /// How it lies there is read by the system from the desktop's two registry values. A failure is silent.
  virtual void Set_Picture(const std::string& path) = 0;
};

}  // namespace platform
