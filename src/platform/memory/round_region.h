// A rectangle with rounded corners as a region of whole pixels.
#pragma once

#include "toolkit/region.h"

namespace platform::memory {

/// From the top left at 0, 0; `corner` is the width and the height of the corners' ellipses. All in pixels.
toolkit::Region Round_Region(int width, int height, int corner);

}  // namespace platform::memory
