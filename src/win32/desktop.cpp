#include "win32/desktop.h"

namespace win32 {

namespace {

// Milliseconds: a shell that hangs must not make the calendar hang.
constexpr UINT patience = 1000;

}  // namespace

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

platform::Window_Handle Shell_Windows::Find_Top_Window(const std::string& window_class, const std::string& caption) {
  return To_Handle(FindWindowA(window_class.c_str(), caption.c_str()));
}

platform::Window_Handle Shell_Windows::Find_Next_Top_Window(platform::Window_Handle after,
                                                            const std::string& window_class) {
  return To_Handle(FindWindowExA(nullptr, To_Window(after), window_class.c_str(), nullptr));
}

bool Shell_Windows::Exists(platform::Window_Handle window) { return IsWindow(To_Window(window)) != 0; }

platform::Window_Handle Shell_Windows::Find_Child(platform::Window_Handle parent, const std::string& window_class) {
  return To_Handle(FindWindowExA(To_Window(parent), nullptr, window_class.c_str(), nullptr));
}

int Shell_Windows::Send(platform::Window_Handle window, unsigned message, int parameter) {
  DWORD_PTR result = 0;
  const bool answered =
      SendMessageTimeoutA(To_Window(window), message, 0, parameter, SMTO_ABORTIFHUNG, patience, &result) != 0;
  return answered ? static_cast<int>(result) : platform::no_colour;
}

platform::Adoption Shell_Windows::Set_Parent(platform::Window_Handle window, platform::Window_Handle parent) {
  Program_Window* const moved = context_.Windows.Around(To_Window(window));
  return moved != nullptr ? moved->Embed(To_Window(parent)) : platform::Adoption::Failed;
}

void Shell_Windows::Invalidate(platform::Window_Handle window) { InvalidateRect(To_Window(window), nullptr, TRUE); }

// The painting itself can't be waited for with a limit.
void Shell_Windows::Update(platform::Window_Handle window) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutA(To_Window(window), WM_NULL, 0, 0, SMTO_ABORTIFHUNG, patience, &result) != 0)
    UpdateWindow(To_Window(window));
}

}  // namespace win32
