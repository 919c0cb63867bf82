#include "win32/graphics.h"

namespace win32 {

COLORREF To_Colour(toolkit::Colour colour) {
  if (toolkit::Is_System_Colour(colour)) return GetSysColor(toolkit::System_Colour_Number(colour));
  return static_cast<COLORREF>(colour) & 0xFFFFFF;
}

void Fill(HDC context, const RECT& place, COLORREF colour) {
  SetBkColor(context, colour);
  ExtTextOutA(context, 0, 0, ETO_OPAQUE, &place, nullptr, 0, nullptr);
}

void Draw_Line_Around(HDC context, RECT& place) {
  FrameRect(context, &place, GetSysColorBrush(COLOR_WINDOWFRAME));
  InflateRect(&place, -1, -1);
}

bool High_Contrast() {
  HIGHCONTRASTA answer = {};
  answer.cbSize = sizeof answer;
  return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof answer, &answer, 0) != 0 &&
         (answer.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

COLORREF Grey_On(COLORREF ground, COLORREF otherwise) {
  const COLORREF grey = GetSysColor(COLOR_GRAYTEXT);
  return grey != ground ? grey : otherwise;
}

}  // namespace win32
