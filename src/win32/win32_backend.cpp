#include "win32/win32_backend.h"

#include <cmath>

#include "win32/form_window.h"

namespace win32 {

std::unique_ptr<toolkit::Form_Peer> Win32_Backend::Make_Peer(toolkit::Form& form) {
  return std::make_unique<Form_Window>(form, context_);
}

// Called ten times a second, so it asks the system only if messages don't report every change of the active window. A
// message box of ours doesn't change the answer, unless another program is active meanwhile.
toolkit::Form* Win32_Backend::Active_Form() {
  if (context_.Behind_Box != nullptr) return Own_Active_Window() != nullptr ? &context_.Behind_Box->Form() : nullptr;
  if (!context_.Embedded) return context_.Active != nullptr ? &context_.Active->Form() : nullptr;
  const HWND active = GetActiveWindow();
  for (const Program_Window* const window : context_.Windows.All())
    if (window->Window() == active) return &window->Form();
  return nullptr;
}

double Win32_Backend::Twips_Per_Pixel(toolkit::Axis axis) {
  return axis == toolkit::Axis::Across ? context_.Scale.X : context_.Scale.Y;
}

double Win32_Backend::Frame_Size(toolkit::Form_Border border, toolkit::Axis axis) {
  if (border == toolkit::Form_Border::None) return 0;
  RECT frame = {};
  const Frame_Style style = Style_Of(border);
  AdjustWindowRectEx(&frame, style.Style, FALSE, style.Extended);
  return axis == toolkit::Axis::Across ? (frame.right - frame.left) * context_.Scale.X
                                       : (frame.bottom - frame.top) * context_.Scale.Y;
}

double Win32_Backend::Screen_Size(toolkit::Axis axis) {
  return GetSystemMetrics(axis == toolkit::Axis::Across ? SM_CXSCREEN : SM_CYSCREEN) * Twips_Per_Pixel(axis);
}

std::string Win32_Backend::Font_Given_For(const std::string& name) { return context_.Fonts.Given_For(name); }

double Win32_Backend::Text_Width(const toolkit::Font& font, std::string_view text) {
  return context_.Fonts.Width(context_.Fonts.Get(font), text) * context_.Scale.X;
}

double Win32_Backend::Text_Height(const toolkit::Font& font, std::string_view text, double width) {
  const Scale& scale = context_.Scale;
  return context_.Fonts.Height(context_.Fonts.Get(font), text, scale.Pixels_X(width)) * scale.Y;
}

std::size_t Win32_Backend::Longest_Beginning(const toolkit::Font& font, std::string_view text, double limit) {
  // The widest whole number of pixels that is narrower than the limit.
  const int pixels = static_cast<int>(std::ceil(limit / context_.Scale.X)) - 1;
  return context_.Fonts.Longest_Beginning(context_.Fonts.Get(font), text, pixels);
}

}  // namespace win32
