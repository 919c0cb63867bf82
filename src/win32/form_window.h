// One window of the system for one form. It paints the controls that have no windows of their own, holds those that
// have, and decodes what the user does into the form's input functions.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "toolkit/form.h"
#include "win32/accessible_form.h"
#include "win32/form_surface.h"
#include "win32/native_control.h"
#include "win32/tip_window.h"

namespace win32 {

/// The system's styles for a border.
struct Frame_Style {
  DWORD Style, Extended;
};
Frame_Style Style_Of(toolkit::Form_Border border);

/// The topmost visible control of the form at a pixel of its client area: the one that is painted there.
toolkit::Control* Control_At(const toolkit::Form& form, const Scale& scale, POINT pixel);

class Form_Window final : public toolkit::Form_Peer, public Program_Window {
 public:
  Form_Window(toolkit::Form& form, Window_Context& context);
  Form_Window(const Form_Window&) = delete;
  Form_Window& operator=(const Form_Window&) = delete;
  ~Form_Window() override;

  void Show(bool activate) override;
  void Hide() override;
  void Activate() override;
  void Form_Changed(toolkit::Aspect aspect) override;
  void Control_Changed(toolkit::Control& control, toolkit::Aspect aspect) override;
  void Paint_Now() override;
  void Set_Region(const toolkit::Region& region) override;
  void Set_Round_Region(int width, int height, int corner) override;
  [[nodiscard]] bool Minimised() const override;
  void Set_Minimised(bool minimised) override;
  void Focus(toolkit::Control* control) override;
  void Capture_Mouse() override { SetCapture(Window()); }
  void Release_Mouse() override;
  [[nodiscard]] platform::Window_Handle Handle() const override { return To_Handle(Window()); }
  [[nodiscard]] platform::Window_Handle Handle_Of(const toolkit::Control& control) const override;

  [[nodiscard]] HWND Window() const override { return window_.Get(); }
  [[nodiscard]] toolkit::Form& Form() const override { return form_; }

  /// Moves the window to where the form is, cuts it to its region and marks what has changed for painting.
  void Settle() override;
  void Look_Changed(UINT message) override;
  bool Take_Key(const MSG& message) override;

  platform::Adoption Embed(HWND parent) override;
  [[nodiscard]] bool Embedded() const override { return parent_ != nullptr; }

 private:
  /// A rectangle with rounded corners, in pixels.
  struct Round_Shape {
    int Width, Height, Corner;
  };

  static void Register_Class(HINSTANCE instance);
  void Give_Up_Owned();
  void Make_Window();
  void Make_Anew();
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);

  // What a message means. Each returns true if the message is handled. **A handler may destroy this window: touch no
  // member after calling one.**
  bool Message(UINT message, WPARAM w, LPARAM l, LRESULT& result);
  bool Mouse_Message(UINT message, WPARAM w, LPARAM l);
  bool Child_Message(UINT message, WPARAM w, LPARAM l, LRESULT& result);
  bool Erase(HDC context);
  [[nodiscard]] std::optional<toolkit::Control*> Under(POINT on_screen, toolkit::Control* control) const;
  void Capture_Changed(HWND to);
  void Tell_Of_Activity_Later();
  bool Active_Changed(bool active);
  void Place_Changed(const WINDOWPOS& place);
  [[nodiscard]] toolkit::Pointer Pointer_Over(const toolkit::Control* control) const;
  bool Set_Pointer(HWND over, WORD part) const;
  void Show_Pointer(const toolkit::Control* changed) const;

  [[nodiscard]] RECT Wanted_Place() const;
  RECT Place_In_Parent();
  void Settle_Place();
  void Follow_Parent();
  void Put_In_Place();
  void Place_For_Return();
  [[nodiscard]] HWND Next_Behind() const;
  void Settle_Region();
  void Settle_Natives();
  [[nodiscard]] Native_Control* Native(const toolkit::Control& control) const;
  [[nodiscard]] Native_Control* Native(HWND window) const;
  HBRUSH Ground();
  void Tips_Changed();
  void Follow_Tip(POINT at);

  toolkit::Form& form_;
  Window_Context& context_;
  Window_Owner window_;
  HWND parent_ = nullptr;    // the shell's window that this one is a child of; nullptr for a top-level window
  bool in_between_ = false;  // the window is being moved to another parent or made anew
  // Pixels of the screen: this window's place, and its parent's as it was when that was last set.
  RECT place_{}, parent_place_{};
  Form_Surface surface_;
  std::vector<std::unique_ptr<Native_Control>> natives_;
  Brush_Owner ground_;  // behind the native controls
  COLORREF ground_colour_ = 0;
  Tip_Window tip_;
  Accessible_Form accessible_;
  // What is to be settled.
  bool moved_ = false, cut_ = false, natives_changed_ = true;
  std::variant<std::monostate, toolkit::Region, Round_Shape> shape_;  // what the window is cut to
  bool tip_check_posted_ = false;
};

}  // namespace win32
