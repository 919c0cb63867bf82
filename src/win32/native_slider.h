// The system's slider.
#pragma once

#include "toolkit/slider.h"
#include "win32/drag_tip.h"
#include "win32/native_control.h"

namespace win32 {

/// The mouse drags it by itself; each step is reported.
class Native_Slider final : public Native_Control {
 public:
  Native_Slider(HWND parent, toolkit::Slider& slider, Window_Context& context);

  void Scrolled(WORD code) override;

 private:
  void Show(toolkit::Aspect aspect) override;
  bool Intercept(UINT message, WPARAM w, LPARAM l) override;
  void Show_Value();
  void Show_Tip();
  [[nodiscard]] int Ticks_Apart() const;

  toolkit::Slider& slider_;
  Drag_Tip tip_;
  bool held_ = false;
};

}  // namespace win32
