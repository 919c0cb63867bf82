// The least that a Windows program with a window costs: floor_window.exe [TICK [TITLE]]
// One window of the calendar's size, with an empty timer of TICK milliseconds if TICK isn't 0. A click repaints it.
#include <windows.h>

#include <cstdlib>

namespace {

constexpr const char* window_class = "Floor_Window";
constexpr int width = 430, height = 448;

/// The window's whole picture at once, as a back buffer is shown.
void Paint(HWND window) {
  static COLORREF colour = RGB(0, 0, 128);
  colour ^= RGB(128, 128, 0);
  PAINTSTRUCT paint;
  const HDC screen = BeginPaint(window, &paint);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ before = SelectObject(memory, picture);
  const HBRUSH brush = CreateSolidBrush(colour);
  const RECT all{0, 0, width, height};
  FillRect(memory, &all, brush);
  BitBlt(screen, 0, 0, width, height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(brush);
  DeleteObject(picture);
  DeleteDC(memory);
  EndPaint(window, &paint);
}

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_TIMER: return 0;
    case WM_LBUTTONUP: InvalidateRect(window, nullptr, FALSE); return 0;
    case WM_PAINT: Paint(window); return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
    default: return DefWindowProcA(window, message, w, l);
  }
}

}  // namespace

int main(int count, char** arguments) {
  const int tick = count > 1 ? std::atoi(arguments[1]) : 0;
  const char* const title = count > 2 ? arguments[2] : "Floor";
  WNDCLASSA description{};
  description.lpfnWndProc = Handle;
  description.hInstance = GetModuleHandleA(nullptr);
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.lpszClassName = window_class;
  RegisterClassA(&description);
  const HWND window = CreateWindowA(window_class, title, WS_POPUP, 40, 40, width, height, nullptr, nullptr,
                                    description.hInstance, nullptr);
  ShowWindow(window, SW_SHOW);
  UpdateWindow(window);
  if (tick > 0) SetTimer(window, 1, static_cast<UINT>(tick), nullptr);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return 0;
}
