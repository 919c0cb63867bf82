// The windows of the desktop's shell, and the calls that make the calendar one of them. Failures are silent.
#pragma once

#include <optional>

#include "platform/window_handle.h"

namespace platform {

/// The messages of the shell's list of icons that read and set the colours of the icons' text.
constexpr unsigned get_text_colour = 4131;
constexpr unsigned get_text_back_colour = 4133;
constexpr unsigned set_text_back_colour = 4134;

/// The background of a text that has none.
constexpr int no_colour = -1;

/// What has become of a window that was to be a child of another one.
enum class Adoption {
  Done,
  Failed,  ///< it couldn't be moved at this moment
  Unseen,  ///< it couldn't be seen there, which will stay so
};

class Desktop_Shell {
 public:
  virtual ~Desktop_Shell() = default;

  /// The top-level window of that class and caption, 0 if there is none.
  virtual Window_Handle Find_Top_Window(const char* window_class, const char* caption) = 0;

  /// The next top-level window of that class behind `after`, from the foremost on if that is 0; 0 if there is none.
  virtual Window_Handle Find_Next_Top_Window(Window_Handle after, const char* window_class) = 0;

  /// Whether the window is still there.
  virtual bool Exists(Window_Handle window) = 0;

  /// The first child of that class, 0 if there is none.
  virtual Window_Handle Find_Child(Window_Handle parent, const char* window_class) = 0;

  /// Sends a message with wParam 0 and lParam `parameter`. Returns its result, cut to 32 bits; nothing where the window
  /// is gone, or hasn't answered after `patience` milliseconds.
  virtual std::optional<int> Send(Window_Handle window, unsigned message, int parameter, int patience) = 0;

  /// Makes the window a child of `parent`, above its other children. Where that isn't done it is a top-level window, at
  /// the same place of the screen; one that was a top-level window before stays where it was among the others. **Waits
  /// for a `parent` that doesn't serve its messages, without a limit.**
  virtual Adoption Set_Parent(Window_Handle window, Window_Handle parent) = 0;

  /// Marks the whole window for erasing and painting.
  virtual void Invalidate(Window_Handle window) = 0;

  /// Paints at once what is marked. Returns false, with nothing painted, where Send would have no answer.
  virtual bool Update(Window_Handle window, int patience) = 0;
};

}  // namespace platform
