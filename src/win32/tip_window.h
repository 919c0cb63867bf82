// The tip of a window: one tool of the system's tip window, which covers the control under the pointer.
#pragma once

#include "win32/tip_tool.h"

namespace win32 {

class Tip_Window {
 public:
  explicit Tip_Window(Common_Controls& controls) : tool_(controls, 0) {}

  /// Shows the text while the pointer rests in the place (pixels of the owner's client area).
  void Watch(HWND owner, const RECT& place, const std::string& text);
  void Remove();
  /// The owner has gone, and the tip window with it.
  void Forget();
  [[nodiscard]] bool Watching() const { return watching_; }

  /// Passes a mouse message of the owner to the tip window.
  void Relay(HWND owner, UINT message, WPARAM w, LPARAM l) const;

 private:
  Tip_Tool tool_;
  bool watching_ = false;
  RECT place_{};
  std::string text_;
};

}  // namespace win32
