#include "win32/graphics.h"

namespace win32 {

namespace {

int Brightness(COLORREF colour) { return (GetRValue(colour) * 3 + GetGValue(colour) * 6 + GetBValue(colour)) / 10; }

}  // namespace

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

bool Readable(COLORREF text, COLORREF ground) {
  constexpr int least = 48;  // of 255
  const int difference = Brightness(text) - Brightness(ground);
  return difference >= least || difference <= -least;
}

COLORREF Grey_On(COLORREF ground, COLORREF otherwise) {
  const COLORREF grey = GetSysColor(COLOR_GRAYTEXT);
  return grey != ground ? grey : otherwise;
}

}  // namespace win32
