// A window as a screen reader asks for it: the window itself, which is number 0, and what is read in it, from number 1
// on. Accessible_Object puts the reader's questions to it.
#pragma once

#include "toolkit/reading.h"
#include "win32/accessibility.h"

namespace win32 {

class Accessible_Object;

/// Posted to a form's window by its own accessible objects: the reader wishes something done. Done only when the
/// question has been answered, since a handler may show a message box, under which the reader would wait.
constexpr UINT reader_wishes = WM_APP + 2;

enum class Wish { Act, Focus };

class Accessible_Window {
 public:
  explicit Accessible_Window(Accessibility& accessibility) : accessibility_(accessibility) {}
  Accessible_Window(const Accessible_Window&) = delete;
  Accessible_Window& operator=(const Accessible_Window&) = delete;
  /// Readers that still hold its object are told from now on that it is gone.
  virtual ~Accessible_Window();

  /// Answers WM_GETOBJECT; returns false if that asks for something else.
  bool Answer(WPARAM w, LPARAM l, LRESULT& result);

  [[nodiscard]] virtual HWND Window() const = 0;
  [[nodiscard]] virtual int Count() const = 0;
  [[nodiscard]] virtual toolkit::Heard Hear(int number) const = 0;

  /// In pixels of the screen.
  [[nodiscard]] virtual RECT Place(int number) const = 0;

  /// The number of what is at a pixel of the screen within the window.
  [[nodiscard]] virtual int At(POINT on_screen) const = 0;

  /// The number of what comes next that way; from 0 the first one for Next and the last one for Previous. 0 for none.
  [[nodiscard]] virtual int Beside(int number, toolkit::Way way) const = 0;

  /// The number of what has the focus, -1 if nothing of this window has; and of what is selected, 0 for none.
  [[nodiscard]] virtual int Focused() const = 0;
  [[nodiscard]] virtual int Selected() const = 0;

  /// The window of its own that a number has; nullptr if it has none.
  [[nodiscard]] virtual HWND Window_Of(int /*number*/) const { return nullptr; }

  /// What it lies in. The caller releases it.
  [[nodiscard]] virtual IDispatch* Parent() const = 0;

  /// Its own number in that; 0 if it has no neighbours there.
  [[nodiscard]] virtual int Number_In_Parent() const { return 0; }

  virtual void Fulfil(int number, Wish wish) const = 0;

  [[nodiscard]] Accessibility& Services() const { return accessibility_; }

 private:
  Accessibility& accessibility_;
  Accessible_Object* object_ = nullptr;
};

}  // namespace win32
