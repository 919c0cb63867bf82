// The system's buttons. They only paint: what the mouse and the keys do to them is decided by the form's input.
#pragma once

#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/option_button.h"
#include "win32/native_control.h"

namespace win32 {

class Native_Button : public Native_Control {
 protected:
  using Native_Control::Native_Control;

  bool Intercept(UINT message, WPARAM w, LPARAM l) override;
  void Show_Held(bool held);

  /// Tells that the caption stands on the form's ground.
  void Stand_On_Ground();

  /// BS_MULTILINE where the control is high enough for two lines.
  [[nodiscard]] DWORD Lines(const toolkit::Font_Properties& font) const;

 private:
  void Follow_Contrast();

  bool on_ground_ = false;
  bool without_style_ = false;
};

class Native_Push_Button final : public Native_Button {
 public:
  Native_Push_Button(HWND parent, toolkit::Command_Button& button, Window_Context& context);

  /// With a picture above its caption it isn't the system that paints it.
  void Draw(const DRAWITEMSTRUCT& item) override;

 private:
  void Show(toolkit::Aspect aspect) override;

  /// The button that the Enter key presses has a heavier frame.
  [[nodiscard]] bool Default() const;
  [[nodiscard]] DWORD Style() const;

  toolkit::Command_Button& button_;
};

class Native_Check_Box final : public Native_Button {
 public:
  Native_Check_Box(HWND parent, toolkit::Check_Box& box, Window_Context& context);

 private:
  void Show(toolkit::Aspect aspect) override;
  void Show_Tick();

  toolkit::Check_Box& box_;
};

class Native_Option_Button final : public Native_Button {
 public:
  Native_Option_Button(HWND parent, toolkit::Option_Button& option, Window_Context& context);

 private:
  void Show(toolkit::Aspect aspect) override;
  void Show_Dot();

  toolkit::Option_Button& option_;
};

}  // namespace win32
