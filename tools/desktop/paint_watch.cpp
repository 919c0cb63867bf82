#include "paint_watch.h"

#include <array>

namespace desktop {

namespace {

constexpr COLORREF change = RGB(2, 2, 2);

std::array<COLORREF, 4> marks{CLR_INVALID, CLR_INVALID, CLR_INVALID, CLR_INVALID};

/// The corners of the screen: what paints a part of it anew, such as the calendar, doesn't reach all of them.
POINT Place_Of(std::size_t mark) {
  const LONG right = GetSystemMetrics(SM_CXSCREEN) - 1, bottom = GetSystemMetrics(SM_CYSCREEN) - 1;
  return {mark % 2 == 0 ? 0 : right, mark / 2 == 0 ? 0 : bottom};
}

bool Is_On_View(POINT place) {
  return GetWindowThreadProcessId(WindowFromPoint(place), nullptr) == GetCurrentThreadId();
}

}  // namespace

void Put_Marks(HDC context, HWND window) {
  for (std::size_t i = 0; i < marks.size(); ++i) {
    POINT at = Place_Of(i);
    ScreenToClient(window, &at);
    if (PtVisible(context, at.x, at.y) != TRUE) continue;  // that corner isn't being painted
    marks[i] = GetPixel(context, at.x, at.y) ^ change;
    SetPixel(context, at.x, at.y, marks[i]);
  }
}

bool A_Mark_Is_Gone() {
  const HDC screen = GetDC(nullptr);
  bool gone = false;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const POINT place = Place_Of(i);
    if (marks[i] != CLR_INVALID && Is_On_View(place)) gone |= GetPixel(screen, place.x, place.y) != marks[i];
  }
  ReleaseDC(nullptr, screen);
  return gone;
}

}  // namespace desktop
