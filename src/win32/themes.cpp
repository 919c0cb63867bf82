#include "win32/themes.h"

#include <utility>

#include "win32/system_library.h"

namespace win32 {

// A library that isn't there is looked for once.
HMODULE Themes::Library() {
  if (!std::exchange(looked_for_, true)) library_ = System_Library("uxtheme.dll");
  return library_.Get();
}

// The style's handle is kept; nullptr is an answer too.
HANDLE Themes::Buttons() {
  if (std::exchange(asked_, true)) return buttons_;
  const auto in_use = Find_Function<BOOL WINAPI()>(Library(), "IsAppThemed");
  const auto open = Find_Function<HANDLE WINAPI(HWND, const wchar_t*)>(library_.Get(), "OpenThemeData");
  if (in_use == nullptr || open == nullptr || in_use() == 0) return nullptr;
  return buttons_ = open(nullptr, L"BUTTON");
}

bool Themes::Draw(HDC context, const Look& look, const RECT& place) {
  const HANDLE buttons = Buttons();
  if (buttons == nullptr) return false;
  const auto draw = Find_Function<HRESULT WINAPI(HANDLE, HDC, int, int, const RECT*, const RECT*)>(
      library_.Get(), "DrawThemeBackground");
  return draw != nullptr && SUCCEEDED(draw(buttons, context, look.Part, look.State, &place, nullptr));
}

COLORREF Themes::Text_Colour(const Look& look, COLORREF otherwise) {
  constexpr int text_colour = 3803;  // TMT_TEXTCOLOR
  const HANDLE buttons = Buttons();
  const auto ask = Find_Function<HRESULT WINAPI(HANDLE, int, int, int, COLORREF*)>(library_.Get(), "GetThemeColor");
  COLORREF colour = otherwise;
  if (buttons == nullptr || ask == nullptr || FAILED(ask(buttons, look.Part, look.State, text_colour, &colour)))
    return otherwise;
  return colour;
}

void Themes::Leave_Out(HWND control, bool out) {
  using Set_Style = HRESULT WINAPI(HWND, const wchar_t*, const wchar_t*);
  const auto set = Find_Function<Set_Style>(Library(), "SetWindowTheme");
  const wchar_t* const name = out ? L"" : nullptr;  // "" names no style, nullptr the usual one
  if (set != nullptr) set(control, name, name);
}

void Themes::Forget() {
  const auto close = Find_Function<HRESULT WINAPI(HANDLE)>(library_.Get(), "CloseThemeData");
  if (buttons_ != nullptr && close != nullptr) close(buttons_);
  buttons_ = nullptr;
  asked_ = false;
}

}  // namespace win32
