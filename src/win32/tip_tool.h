// The system's tip window with the one tool that it has here: what the tip under the pointer and the one beside a
// slider's thumb have in common.
#pragma once

#include <string>

#include "win32/common_controls.h"

namespace win32 {

class Tip_Tool {
 public:
  /// `flags` are the system's for the tool.
  Tip_Tool(Common_Controls& controls, UINT flags) : controls_(controls), flags_(flags) {}

  /// Makes the window with the first call. Returns false on a system without tips.
  bool Make(HWND owner);
  /// The owner has gone, and the window with it.
  void Forget() { window_.Reset(); }

  void Send(UINT message, WPARAM w = 0, LPARAM l = 0) const { SendMessageA(window_.Get(), message, w, l); }

  /// A message about the tool, with its text and its place (pixels of the owner's client area) where it asks for them.
  void Send_Tool(UINT message, WPARAM w = 0, std::string text = {}, const RECT& place = {}) const;

 private:
  Common_Controls& controls_;
  const UINT flags_;
  Window_Owner window_;
  HWND owner_ = nullptr;
};

}  // namespace win32
