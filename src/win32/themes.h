// The system's visual styles, where there are any: the parts that we paint ourselves.
#pragma once

#include "win32/handle.h"

namespace win32 {

constexpr UINT style_changed = 0x031A;  // WM_THEMECHANGED, of the newer systems

class Themes {
 public:
  Themes() = default;
  Themes(const Themes&) = delete;
  Themes& operator=(const Themes&) = delete;
  ~Themes() { Forget(); }

  /// What a part of the class "BUTTON" looks like, by the system's numbers of parts and states.
  struct Look {
    int Part, State;
  };

  /// Draws it; returns false, with nothing drawn, where no visual style is in use.
  bool Draw(HDC context, const Look& look, const RECT& place);

  /// The colour of its text; `otherwise` where no visual style is in use.
  COLORREF Text_Colour(const Look& look, COLORREF otherwise);

  /// Lets the system draw a control without the style, or with it again.
  void Leave_Out(HWND control, bool out);

  /// The user has changed the style.
  void Forget();

 private:
  HMODULE Library();
  HANDLE Buttons();

  Library_Owner library_;
  bool looked_for_ = false;
  HANDLE buttons_ = nullptr;
  bool asked_ = false;
};

}  // namespace win32
