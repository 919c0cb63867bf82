#include "win32/desktop.h"

namespace win32 {

platform::Pixel_Area Primary_Screen::Bounds() {
  return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

platform::Pixel_Area Primary_Screen::Work_Area() {
  RECT area = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

void Desktop_Picture::Set_Picture(const std::string& path) {
  std::string copy = path;  // the call wants a text that isn't constant
  SystemParametersInfoA(SPI_SETDESKWALLPAPER, 0, copy.data(), SPIF_UPDATEINIFILE | SPIF_SENDCHANGE);
}

platform::Window_Handle Shell_Windows::Find_Top_Window(const char* window_class, const char* caption) {
  return To_Handle(FindWindowA(window_class, caption));
}

platform::Window_Handle Shell_Windows::Find_Next_Top_Window(platform::Window_Handle after, const char* window_class) {
  return To_Handle(FindWindowExA(nullptr, To_Window(after), window_class, nullptr));
}

bool Shell_Windows::Exists(platform::Window_Handle window) { return IsWindow(To_Window(window)) != 0; }

platform::Window_Handle Shell_Windows::Find_Child(platform::Window_Handle parent, const char* window_class) {
  return To_Handle(FindWindowExA(To_Window(parent), nullptr, window_class, nullptr));
}

std::optional<int> Shell_Windows::Send(platform::Window_Handle window, unsigned message, int parameter, int patience) {
  DWORD_PTR result = 0;
  const auto limit = static_cast<UINT>(patience);
  const bool answered = SendMessageTimeoutA(To_Window(window), message, 0, parameter, SMTO_NORMAL, limit, &result) != 0;
  return answered ? std::optional(static_cast<int>(result)) : std::nullopt;
}

platform::Adoption Shell_Windows::Set_Parent(platform::Window_Handle window, platform::Window_Handle parent) {
  Program_Window* const moved = context_.Windows.Around(To_Window(window));
  return moved != nullptr ? moved->Embed(To_Window(parent)) : platform::Adoption::Failed;
}

void Shell_Windows::Invalidate(platform::Window_Handle window) { InvalidateRect(To_Window(window), nullptr, TRUE); }

// The painting itself can't be waited for with a limit.
bool Shell_Windows::Update(platform::Window_Handle window, int patience) {
  if (!Send(window, WM_NULL, 0, patience)) return false;
  UpdateWindow(To_Window(window));
  return true;
}

}  // namespace win32
