// A control that is a window of the system's own: it is made, shows what the control has become, and reports what it
// did. One class for each kind derives from it; the form's window holds them all.
#pragma once

#include <memory>
#include <string>

#include "toolkit/control.h"
#include "toolkit/label.h"
#include "win32/window_context.h"

namespace win32 {

class Native_Control {
 public:
  Native_Control(const Native_Control&) = delete;
  Native_Control& operator=(const Native_Control&) = delete;
  virtual ~Native_Control();

  [[nodiscard]] toolkit::Control& Control() const { return control_; }
  [[nodiscard]] HWND Window() const { return window_; }

  /// Shows a changed property.
  void Changed(toolkit::Aspect aspect);

  /// What the system's control tells its parent, as a WM_COMMAND code. **A handler may destroy this control: touch no
  /// member after calling one.**
  virtual void Command(WORD /*code*/) {}

 protected:
  /// What the system makes the window from.
  struct Kind {
    const char* Class;
    DWORD Style, Extended;
  };

  Native_Control(HWND parent, toolkit::Control& control, Window_Context& context);

  /// Makes the window, as the last step of a kind's construction.
  void Make(const Kind& kind, const std::string& text, const toolkit::Font_Properties& font);

  /// Shows a change that isn't of place, visibility or enabledness.
  virtual void Show(toolkit::Aspect aspect) = 0;

  /// A message to the system's control before it gets it. Returns true if it shall not.
  virtual bool Intercept(UINT /*message*/, WPARAM /*w*/, LPARAM /*l*/) { return false; }

  void Show_Font(const toolkit::Font_Properties& font);
  void Show_Text(const std::string& text);

  /// Sends a mouse message of this window to the form's window, where its input takes the road of all controls. **A
  /// handler may destroy this control: touch no member after this call.**
  void Forward_To_Form(UINT message, WPARAM w, LPARAM l) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void Show_Place();

  const HWND parent_;
  toolkit::Control& control_;
  Window_Context& context_;
  HWND window_ = nullptr;  // destroyed with its parent
  WNDPROC procedure_ = nullptr;
  RECT place_{};
};

/// The system's control for a control of the toolkit; nullptr for a kind that the form's window paints itself.
std::unique_ptr<Native_Control> Make_Native_Control(HWND parent, toolkit::Control& control, Window_Context& context);

}  // namespace win32
