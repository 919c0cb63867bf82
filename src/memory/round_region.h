// A rectangle with rounded corners as a region of whole pixels.
#pragma once

#include "toolkit/region.h"

namespace memory {

/// The region starts at 0, 0; `corner` is the width and the height of the corners' ellipses. All in pixels. As in the
/// system's own round regions, the last column and the last row don't belong to it.
toolkit::Region Round_Region(int width, int height, int corner);

}  // namespace memory
