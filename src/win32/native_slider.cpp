#include "win32/native_slider.h"

#include <commctrl.h>

#include <utility>

namespace win32 {

Native_Slider::Native_Slider(HWND parent, toolkit::Slider& slider, Window_Context& context)
    : Native_Control(parent, slider, context), slider_(slider), tip_(context.Common_Controls) {
  context.Common_Controls.Start();
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
  if (message != WM_LBUTTONDOWN) return false;
  held_ = true;
  SetFocus(Window());
  Show_Tip();
  slider_.User_Press();
  return false;
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
