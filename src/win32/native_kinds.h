// The kinds of the system's own controls.
#pragma once

#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"
#include "win32/native_control.h"

namespace win32 {

/// The system's buttons only paint: what the mouse and the keys do to them is decided by the form's input.
class Native_Button : public Native_Control {
 protected:
  using Native_Control::Native_Control;

  bool Intercept(UINT message, WPARAM w, LPARAM l) override;
  void Show_Held(bool held);
};

class Native_Push_Button final : public Native_Button {
 public:
  Native_Push_Button(HWND parent, toolkit::Command_Button& button, Window_Context& context);

 private:
  void Show(toolkit::Aspect aspect) override;

  /// The button that the Enter key presses has a heavier frame.
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

/// The system's text box edits by itself and reports each change of its text.
class Native_Text_Box final : public Native_Control {
 public:
  Native_Text_Box(HWND parent, toolkit::Text_Box& box, Window_Context& context);

  void Command(WORD code) override;

 private:
  void Show(toolkit::Aspect aspect) override;
  void Show_Selection();

  toolkit::Text_Box& box_;
  bool being_set_ = false;  // its text is being set by the program, which is no edit
};

}  // namespace win32
