// The system's tabs.
#pragma once

#include "toolkit/tab_strip.h"
#include "win32/native_control.h"

namespace win32 {

/// Its page is cut out of it: what lies there is painted by the form's window, and has its mouse.
class Native_Tab_Strip final : public Native_Control {
 public:
  Native_Tab_Strip(HWND parent, toolkit::Tab_Strip& strip, Window_Context& context);

  void Notified(UINT code) override;
  [[nodiscard]] RECT Part_Place(int part) const override;

 private:
  void Show(toolkit::Aspect aspect) override;
  void Show_Place() override;
  bool Intercept(UINT message, WPARAM w, LPARAM l) override;
  void Show_Tabs();
  void Show_Selected();
  void Cut_Page_Out();

  toolkit::Tab_Strip& strip_;
};

}  // namespace win32
