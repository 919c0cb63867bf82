#include "win32/native_slider.h"

#include <commctrl.h>

#include <utility>

namespace win32 {

Native_Slider::Native_Slider(HWND parent, toolkit::Slider& slider, Window_Context& context)
    : Native_Control(parent, slider, context), slider_(slider), tip_(context.Common_Controls) {
  const DWORD direction = slider.Direction == toolkit::Slide::Down ? TBS_VERT : TBS_HORZ;
  Make({TRACKBAR_CLASSA, TBS_AUTOTICKS | direction, 0});
  Send(TBM_SETRANGEMIN, FALSE, slider.Min);
  Send(TBM_SETRANGEMAX, FALSE, slider.Max);
  Send(TBM_SETTICFREQ, static_cast<WPARAM>(Ticks_Apart()));
  Send(TBM_SETPAGESIZE, 0, slider.Page());
  Show_Value();
}

/// A tick for each value, or for each page where they would run into each other.
int Native_Slider::Ticks_Apart() const {
  constexpr int least_gap = 3;  // pixels
  const RECT place = Wanted_Place();
  const bool down = slider_.Direction == toolkit::Slide::Down;
  const int length = down ? place.bottom - place.top : place.right - place.left;
  return (slider_.Max - slider_.Min) * least_gap <= length ? 1 : slider_.Page();
}

void Native_Slider::Show(toolkit::Aspect aspect) {
  if (aspect == toolkit::Aspect::Value) Show_Value();
  if (aspect == toolkit::Aspect::Drag_Tip && held_) Show_Tip();
}

void Native_Slider::Show_Value() {
  if (Send(TBM_GETPOS) != slider_.Value()) Send(TBM_SETPOS, TRUE, slider_.Value());
}

void Native_Slider::Show_Tip() {
  constexpr int gap = 4;  // pixels
  RECT thumb = {};
  Send(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
  const bool down = slider_.Direction == toolkit::Slide::Down;
  POINT at = down ? POINT{thumb.right + gap, thumb.top} : POINT{thumb.left, thumb.bottom + gap};
  ClientToScreen(Window(), &at);
  tip_.Show(Window(), at, slider_.Text);
}

bool Native_Slider::Intercept(UINT message, WPARAM /*w*/, LPARAM /*l*/) {
  constexpr UINT wheel = 0x020A;  // WM_MOUSEWHEEL, of the newer systems: it would move the thumb behind our back
  if (message == wheel) return true;
  const bool left = message == WM_LBUTTONDOWN;
  if (!left && message != WM_RBUTTONDOWN && message != WM_MBUTTONDOWN) return false;
  // The window hears first that it is active, and may hide the slider by it, or go itself.
  toolkit::Input& input = slider_.Window.System().Input;
  toolkit::Form& form = slider_.Window;
  toolkit::Slider& slider = slider_;
  form.Set_Focus(slider);
  if (!input.Is_There(&form, &slider) || !slider.On_View() || !slider.Usable()) return true;
  if (left) {
    held_ = true;
    Show_Tip();
  }
  slider.User_Press();
  return !input.Is_There(&form, &slider);
}

void Native_Slider::Scrolled(WORD code) {
  if (!held_) return;
  if (code == TB_ENDTRACK) {
    held_ = false;
    tip_.Hide();
    slider_.User_Release();
    return;
  }
  Show_Tip();
  slider_.User_Scroll(static_cast<int>(Send(TBM_GETPOS)));
}

}  // namespace win32
