#include "win32/hidden_window.h"

#include "win32/guard.h"

namespace win32 {

Hidden_Window::Hidden_Window(HINSTANCE instance, Guard& guard, const char* window_class, const char* title)
    : guard_(guard) {
  WNDCLASSA description = {};
  description.lpfnWndProc = Procedure;
  description.hInstance = instance;
  description.lpszClassName = window_class;
  RegisterClassA(&description);
  window_.Reset(Made(CreateWindowExA(WS_EX_TOOLWINDOW, window_class, title, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                     instance, nullptr)));
  SetWindowLongPtrA(Window(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

bool Hidden_Window::Take(UINT message, WPARAM w) {
  bool taken = false;
  guard_.Run([&] { taken = Message(message, w); });
  return taken;
}

LRESULT CALLBACK Hidden_Window::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<Hidden_Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  const bool taken = self != nullptr && self->Take(message, w);
  // Only its owner destroys it.
  return taken || message == WM_CLOSE ? 0 : DefWindowProcA(window, message, w, l);
}

}  // namespace win32
