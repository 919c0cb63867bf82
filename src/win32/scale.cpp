#include "win32/scale.h"

namespace win32 {

Scale Scale::Of_Screen() {
  constexpr double twips_per_inch = 1440;
  const HDC screen = GetDC(nullptr);
  const int across = GetDeviceCaps(screen, LOGPIXELSX);
  const int down = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return {twips_per_inch / across, twips_per_inch / down, down};
}

}  // namespace win32
