// A form's window as a screen reader asks for it. What it paints itself are numbers alone; each of the system's
// controls has an object of its own.
#pragma once

#include <array>

#include "toolkit/property.h"
#include "win32/accessible_window.h"
#include "win32/scale.h"

namespace win32 {

class Accessible_Form final : public Accessible_Window {
 public:
  Accessible_Form(toolkit::Form& form, const Scale& scale, Accessibility& accessibility)
      : Accessible_Window(accessibility), form_(form), scale_(scale) {}

  [[nodiscard]] HWND Window() const override;
  [[nodiscard]] int Count() const override { return static_cast<int>(toolkit::Heard_Controls(form_).size()); }
  [[nodiscard]] toolkit::Heard Hear(int number) const override;
  [[nodiscard]] RECT Place(int number) const override;
  [[nodiscard]] int At(POINT on_screen) const override;
  [[nodiscard]] int Beside(int number, toolkit::Way way) const override;
  [[nodiscard]] int Focused() const override;
  [[nodiscard]] int Selected() const override { return 0; }
  [[nodiscard]] HWND Window_Of(int number) const override;
  [[nodiscard]] IDispatch* Parent() const override;
  void Fulfil(int number, Wish wish) const override { Post(form_, number, -1, wish); }

  /// The number that a control has in its form's window.
  static int Number_In_Form(const toolkit::Control& control);

  /// Asks the window of the control's form to do it for the control, or for a part of it; -1: for it as a whole.
  /// Nothing is done for a control that is heard with another one.
  static void Fulfil(const toolkit::Control& control, int part, Wish wish);

  /// Does what was asked by the message reader_wishes. **A handler may destroy the window: touch no member after it.**
  void Do(WPARAM w, LPARAM l) const;

  /// Notes a change of a control that readers are told of, and tells them once for however many changes.
  void Changed(const toolkit::Control& control, toolkit::Aspect aspect);
  void Settle() {
    if (changes_ != 0) Tell_Changes();
  }

 private:
  static void Post(const toolkit::Form& form, int number, int part, Wish wish);
  [[nodiscard]] toolkit::Control* Control(int number) const;
  [[nodiscard]] int Number_Of(const toolkit::Control* control) const;
  void Open_List(toolkit::Control& control) const;
  void Tell_Changes();

  toolkit::Form& form_;
  const Scale& scale_;
  // The names that have changed since readers were last told, as far as there is room for them.
  std::array<const toolkit::Control*, 4> renamed_{};
  std::size_t changes_ = 0;
};

}  // namespace win32
