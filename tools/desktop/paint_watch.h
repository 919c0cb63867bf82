// Looks after what the stand-in has painted. A desktop of Wine's own lies behind it, and paints a new picture over all windows
// on it, some time after it was told of the picture.
#pragma once

#include <windows.h>

namespace desktop {

/// Changes the corners of the screen in a freshly painted ground, by so little that nobody sees it. `window` is the one
/// whose client area is painted.
void Put_Marks(HDC context, HWND window);

/// Whether something that isn't a window of this thread has been painted over a mark.
bool A_Mark_Is_Gone();

}  // namespace desktop
