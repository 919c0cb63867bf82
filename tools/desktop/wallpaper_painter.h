// The desktop's ground: its colour and the user's picture on it, in the middle, tiled or stretched.
#pragma once

#include <windows.h>

namespace desktop {

constexpr COLORREF ground_colour = RGB(40, 120, 90);

/// Paints an area from 0, 0 with the picture that the user's profile names, as it is asked for there now.
void Paint_Ground(HDC context, int width, int height);

}  // namespace desktop
