// What the windows of one program share.
#pragma once

#include <vector>

#include "win32/common_controls.h"
#include "win32/guard.h"
#include "win32/painter.h"
#include "win32/pointers.h"
#include "win32/scale.h"

namespace toolkit {
class Form;
class Input;
}  // namespace toolkit

namespace win32 {

/// A window of the program, as the loop and the services see it.
class Program_Window {
 public:
  [[nodiscard]] virtual HWND Window() const = 0;
  [[nodiscard]] virtual toolkit::Form& Form() const = 0;

  /// Shows what the form has become since the last time.
  virtual void Settle() = 0;

  /// A key on its way to this window or to one in it. Returns true if it is used up. **A handler may destroy this window:
  /// touch no member after calling one.**
  virtual bool Take_Key(const MSG& message) = 0;

 protected:
  ~Program_Window() = default;
};

/// The open windows, in the order in which they were made.
class Window_List {
 public:
  void Add(Program_Window& window) { windows_.push_back(&window); }
  void Remove(Program_Window& window) { std::erase(windows_, &window); }
  [[nodiscard]] const std::vector<Program_Window*>& All() const { return windows_; }

  /// Comes after each callback of the system and before each wait, so that however many properties change in between,
  /// the display is told once.
  void Settle();

  /// The program's window that is or holds this one; nullptr if it belongs to none.
  [[nodiscard]] Program_Window* Around(HWND window) const;

 private:
  std::vector<Program_Window*> windows_;
};

struct Window_Context {
  explicit Window_Context(HINSTANCE instance) : Instance(instance), Pictures(instance), Pointers(instance) {
    Guard.Afterwards = [this] { Windows.Settle(); };
  }

  HINSTANCE Instance;
  win32::Guard Guard;
  const win32::Scale Scale = Scale::Of_Screen();
  win32::Fonts Fonts{Scale};
  Stock_Pictures Pictures;
  win32::Themes Themes;
  win32::Painter Painter{{Fonts, Pictures, Themes}};
  win32::Common_Controls Common_Controls;
  win32::Pointers Pointers;
  Window_List Windows;

  /// The active window as the system's messages have told, nullptr if it is none of ours.
  Program_Window* Active = nullptr;
  /// The window that was active when the message box that is open came up.
  Program_Window* Behind_Box = nullptr;
  /// A window of ours belongs to another program's window. The two programs share one state of input then, and the messages
  /// don't tell all of its changes.
  bool Embedded = false;

  /// Where the pointer was last seen, in pixels of the screen. The system reports a move whenever windows change under a
  /// pointer at rest: what comes from the same place moved nothing.
  POINT Pointer{};

  /// Before a window changes under the pointer. While a control has the mouse its moves all count.
  void Note_Pointer(const toolkit::Input& input);
};

}  // namespace win32
