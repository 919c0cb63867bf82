// A rectangle with rounded corners as a region of whole pixels.
#pragma once

#include "toolkit/region.h"

namespace memory {

/// From the top left at 0, 0; `corner` is the width and the height of the corners' ellipses. All in pixels. As with the
/// system's own, the last column and the last row don't belong to it.
toolkit::Region Round_Region(int width, int height, int corner);

}  // namespace memory
