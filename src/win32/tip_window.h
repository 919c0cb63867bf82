// The tip of a window: one tool of the system's tip window, which covers the control under the pointer.
#pragma once

#include <string>

#include "win32/common_controls.h"

namespace win32 {

class Tip_Window {
 public:
  explicit Tip_Window(Common_Controls& controls) : controls_(controls) {}

  /// Shows the text while the pointer rests in the place (pixels of the owner's client area).
  void Watch(HWND owner, const RECT& place, const std::string& text);
  void Remove();
  /// The owner has gone, and the tip window with it.
  void Forget();
  [[nodiscard]] bool Watching() const { return watching_; }

  /// Passes a mouse message of the owner to the tip window.
  void Relay(HWND owner, UINT message, WPARAM w, LPARAM l) const;

 private:
  bool Make(HWND owner);

  Common_Controls& controls_;
  Window_Owner window_;
  HWND owner_ = nullptr;
  bool watching_ = false;
  RECT place_{};
  std::string text_;
};

}  // namespace win32
