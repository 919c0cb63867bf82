// What the windows of one program share.
#pragma once

#include <vector>

#include "platform/desktop_shell.h"
#include "win32/accessibility.h"
#include "win32/common_controls.h"
#include "win32/guard.h"
#include "win32/painter.h"
#include "win32/pointers.h"
#include "win32/scale.h"
#include "win32/timers.h"
#include "win32/work_on_windows.h"

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

  /// Shows all changes of the form since the last call.
  virtual void Settle() = 0;

  /// Paints anew after a change of the system's colours (WM_SYSCOLORCHANGE) or of the style of all that is drawn.
  virtual void Look_Changed(UINT message) = 0;

  /// Makes this window a child of one of the shell's, as platform::Desktop_Shell::Set_Parent tells.
  virtual platform::Adoption Embed(HWND parent) = 0;

  /// Whether it is such a child. A box must not be owned by it: the shell's window would be the owner, and disabled.
  [[nodiscard]] virtual bool Embedded() const = 0;

  /// A key on its way to this window or to one in it. Returns true if it is used up. **A handler may destroy this
  /// window: touch no member after calling one.**
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

  /// Called after each callback of the system and before each wait: the display changes once, however many properties
  /// have changed in between.
  void Settle();

  /// The program's window that is or holds this one; nullptr if it belongs to none.
  [[nodiscard]] Program_Window* Around(HWND window) const;

 private:
  std::vector<Program_Window*> windows_;
};

struct Window_Context {
  Window_Context(HINSTANCE instance, UINT code_page)
      : Instance(instance), Code_Page(code_page), Pictures(instance), Pointers(instance) {
    Guard.Afterwards = [this] { Windows.Settle(); };
  }

  HINSTANCE Instance;
  const UINT Code_Page;  ///< of all texts
  win32::Guard Guard;
  win32::Timers Timers{Instance, Guard};
  const win32::Scale Scale = Scale::Of_Screen();
  win32::Fonts Fonts{Scale, Code_Page};
  Stock_Pictures Pictures;
  win32::Themes Themes;
  win32::Painter Painter{{Fonts, Pictures, Themes}};
  win32::Common_Controls Common_Controls;
  win32::Pointers Pointers;
  win32::Accessibility Accessibility;
  Window_List Windows;

  /// The active window, as far as the system's messages have reported it; nullptr if it isn't one of ours.
  Program_Window* Active = nullptr;
  /// The window that was active when the open message box came up; nullptr if none is open.
  Program_Window* Behind_Box = nullptr;
  /// True once a window of ours is a child of another program's window. The two programs then share one state of input,
  /// and the messages don't report all of its changes.
  bool Embedded = false;

  Work_On_Windows Work;

  /// Where the pointer was last seen, in pixels of the screen. The system also reports a move when a window changes
  /// under a pointer at rest: a report from the same place isn't a move.
  POINT Pointer{};

  /// Called before a window changes under the pointer. Does nothing while a control has the mouse: then all moves
  /// count.
  void Note_Pointer(const toolkit::Input& input);
};

}  // namespace win32
