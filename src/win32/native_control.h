// A control that is a window of the system's own: it is made, shows what the control has become, and reports what it
// did. One class for each kind derives from it; the form's window holds them all.
#pragma once

#include <memory>
#include <string>

#include "toolkit/control.h"
#include "toolkit/label.h"
#include "win32/accessible_native.h"
#include "win32/tip_window.h"
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

  /// Shows what is shown once for however many changes; comes after changes, before the display is looked at.
  virtual void Settle() {}

  // What the system's control tells its parent. **A handler may destroy this control: touch no member after calling
  // one.**

  virtual void Command(WORD /*code*/) {}
  virtual void Scrolled(WORD /*code*/) {}
  virtual void Notified(UINT /*code*/) {}
  virtual void Draw(const DRAWITEMSTRUCT& /*item*/) {}

  /// The window in which the parts of a list or a strip of tabs lie; nullptr while they aren't shown anywhere.
  [[nodiscard]] virtual HWND Parts_Window() const { return window_; }
  /// The place of a part, in pixels of that window; empty without one, and for any other control.
  [[nodiscard]] virtual RECT Part_Place(int /*part*/) const { return {}; }

  /// Whether the keys are the system's at this moment.
  [[nodiscard]] virtual bool Keeps_Keys() const { return false; }

 protected:
  /// What the system makes the window from.
  struct Kind {
    const char* Class;
    DWORD Style, Extended;
  };

  Native_Control(HWND parent, toolkit::Control& control, Window_Context& context);

  /// Makes the window, as the first step of a kind's construction.
  void Make(const Kind& kind, const std::string& text = {});

  /// Shows a change that isn't of place, visibility or enabledness.
  virtual void Show(toolkit::Aspect aspect) = 0;

  /// The place of the window, in pixels of the form's client area, and its showing.
  [[nodiscard]] virtual RECT Wanted_Place() const;
  virtual void Show_Place();

  /// A message to the system's control before it gets it. Returns true if it shall not.
  virtual bool Intercept(UINT /*message*/, WPARAM /*w*/, LPARAM /*l*/) { return false; }

  /// A message straight to the system's control, without a look at what it changes.
  LRESULT Send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return CallWindowProcA(procedure_, window_, message, w, l);
  }

  /// The font of such a control.
  [[nodiscard]] Face& Font_Of(const toolkit::Font_Properties& font) const;
  void Show_Font(const toolkit::Font_Properties& font);
  void Show_Text(const std::string& text);

  /// Sends a mouse message of this window to the form's window, where its input takes the road of all controls. **A
  /// handler may destroy this control: touch no member after this call.**
  void Forward_To_Form(UINT message, WPARAM w, LPARAM l) const;

  [[nodiscard]] Window_Context& Context() const { return context_; }
  [[nodiscard]] HWND Parent() const { return parent_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void Follow_Tip(UINT message, WPARAM w, LPARAM l);

  const HWND parent_;
  toolkit::Control& control_;
  Window_Context& context_;
  HWND window_ = nullptr;  // destroyed with its parent
  WNDPROC procedure_ = nullptr;
  RECT place_{};
  Tip_Window tip_;
  Accessible_Native accessible_;
};

/// The system's control for a control of the toolkit; nullptr for a kind that the form's window paints itself.
std::unique_ptr<Native_Control> Make_Native_Control(HWND parent, toolkit::Control& control, Window_Context& context);

}  // namespace win32
