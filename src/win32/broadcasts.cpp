#include "win32/broadcasts.h"

namespace win32 {

bool Broadcasts::Message(UINT message, WPARAM) {
  if (message != WM_SYSCOLORCHANGE && message != style_changed) return false;
  context_.Themes.Forget();
  context_.Pictures.Forget_Bitmaps();
  // By index: a window that shows the change may settle the others.
  const auto& windows = context_.Windows.All();
  for (std::size_t i = 0; i < windows.size(); ++i) windows[i]->Look_Changed(message);
  return false;
}

}  // namespace win32
