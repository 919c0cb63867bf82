// The system's text box.
#pragma once

#include "toolkit/text_box.h"
#include "win32/native_control.h"

namespace win32 {

/// It edits by itself and reports each change of its text.
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
