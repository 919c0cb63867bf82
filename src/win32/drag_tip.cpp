#include "win32/drag_tip.h"

#include <commctrl.h>

namespace win32 {

// The slider's own tip can't be used: not every version of the library asks for its text.
Drag_Tip::Drag_Tip(Common_Controls& controls) : tool_(controls, TTF_TRACK | TTF_ABSOLUTE) {}

void Drag_Tip::Show(HWND owner, POINT on_screen, const std::string& text) {
  if (text.empty()) return Hide();
  if (!tool_.Make(owner)) return;
  tool_.Send_Tool(shown_ ? TTM_UPDATETIPTEXTA : TTM_ADDTOOLA, 0, text);
  tool_.Send(TTM_TRACKPOSITION, 0, MAKELPARAM(on_screen.x, on_screen.y));
  if (!shown_) tool_.Send_Tool(TTM_TRACKACTIVATE, TRUE);
  shown_ = true;
}

void Drag_Tip::Hide() {
  if (!shown_) return;
  shown_ = false;
  tool_.Send_Tool(TTM_TRACKACTIVATE, FALSE);
  tool_.Send_Tool(TTM_DELTOOLA);
}

}  // namespace win32
