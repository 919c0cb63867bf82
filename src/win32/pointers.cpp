#include "win32/pointers.h"

#include "win32/resource_numbers.h"

namespace win32 {

HCURSOR Pointers::Shape(toolkit::Pointer pointer) const {
  HCURSOR shape = nullptr;
  switch (pointer) {
    case toolkit::Pointer::Default: break;
    case toolkit::Pointer::Four_Arrows: shape = LoadCursorA(nullptr, IDC_SIZEALL); break;
    case toolkit::Pointer::Hourglass: shape = LoadCursorA(nullptr, IDC_WAIT); break;
    case toolkit::Pointer::Cross_Hair:
      shape = LoadCursorA(instance_, MAKEINTRESOURCEA(MERIDEX_CROSS_HAIR_CURSOR));
      if (shape == nullptr) shape = LoadCursorA(nullptr, IDC_CROSS);
      break;
    // The first systems have no hand.
    case toolkit::Pointer::Hand: shape = LoadCursorA(nullptr, IDC_HAND); break;
  }
  return shape != nullptr ? shape : LoadCursorA(nullptr, IDC_ARROW);
}

void Pointers::Set_Busy(bool busy) {
  busy_ = busy;
  if (busy) return Show(toolkit::Pointer::Hourglass);
  POINT at;
  const HWND under = GetCursorPos(&at) != 0 ? WindowFromPoint(at) : nullptr;
  if (under == nullptr || GetWindowThreadProcessId(under, nullptr) != GetCurrentThreadId()) return;
  SendMessageA(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

}  // namespace win32
