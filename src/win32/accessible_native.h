// One of the system's controls as a screen reader asks for it: by what the toolkit's control tells of itself, the same
// on every system, with a list's items and a strip's tabs as its parts.
#pragma once

#include "win32/accessible_window.h"

namespace win32 {

class Native_Control;

class Accessible_Native final : public Accessible_Window {
 public:
  Accessible_Native(const Native_Control& native, Accessibility& accessibility)
      : Accessible_Window(accessibility), native_(native) {}

  [[nodiscard]] HWND Window() const override;
  [[nodiscard]] int Count() const override;
  [[nodiscard]] toolkit::Heard Hear(int number) const override;
  [[nodiscard]] RECT Place(int number) const override;
  [[nodiscard]] int At(POINT on_screen) const override;
  [[nodiscard]] int Beside(int number, toolkit::Way way) const override;
  [[nodiscard]] int Focused() const override;
  [[nodiscard]] int Selected() const override;
  [[nodiscard]] IDispatch* Parent() const override;
  [[nodiscard]] int Number_In_Parent() const override;
  void Fulfil(int number, Wish wish) const override;

 private:
  [[nodiscard]] RECT Seen_Place(int part) const;

  const Native_Control& native_;
};

}  // namespace win32
