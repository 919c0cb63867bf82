// The desktop's picture.
#pragma once

#include <string>

namespace platform {

class Wallpaper {
 public:
  virtual ~Wallpaper() = default;

  /// Makes the file the desktop's picture, in the user's profile and on the screen; an empty path removes the picture.
  /// Whether it is centred, tiled or stretched the system reads from two registry values of the desktop. A failure is
  /// silent.
  virtual void Set_Picture(const std::string& path) = 0;
};

}  // namespace platform
