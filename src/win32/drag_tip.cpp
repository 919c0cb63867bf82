#include "win32/drag_tip.h"

#include <commctrl.h>

namespace win32 {

namespace {

// The slider's own tip can't be used: not every version of the library asks for its text.
TTTOOLINFOA Tool_Of(HWND owner) {
  TTTOOLINFOA tool = {};
  tool.cbSize = TTTOOLINFOA_V1_SIZE;  // the size that every version of the library knows
  tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
  tool.hwnd = owner;
  tool.uId = 1;
  return tool;
}

void Send_Tool(HWND window, UINT message, WPARAM w, const TTTOOLINFOA& tool) {
  SendMessageA(window, message, w, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

bool Drag_Tip::Make(HWND owner) {
  if (window_) return true;
  if (!controls_.Start()) return false;
  owner_ = owner;
  window_.Reset(Made(CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                                     0, 0, 0, 0, owner, nullptr, GetModuleHandleA(nullptr), nullptr)));
  char empty[] = "";
  TTTOOLINFOA tool = Tool_Of(owner);
  tool.lpszText = empty;
  Send_Tool(window_.Get(), TTM_ADDTOOLA, 0, tool);
  return true;
}

void Drag_Tip::Show(HWND owner, POINT on_screen, const std::string& text) {
  if (text.empty()) return Hide();
  if (!Make(owner)) return;
  std::string shown = text;
  TTTOOLINFOA tool = Tool_Of(owner_);
  tool.lpszText = shown.data();
  Send_Tool(window_.Get(), TTM_UPDATETIPTEXTA, 0, tool);
  SendMessageA(window_.Get(), TTM_TRACKPOSITION, 0, MAKELPARAM(on_screen.x, on_screen.y));
  if (!shown_) Send_Tool(window_.Get(), TTM_TRACKACTIVATE, TRUE, tool);
  shown_ = true;
}

void Drag_Tip::Hide() {
  if (!shown_) return;
  shown_ = false;
  Send_Tool(window_.Get(), TTM_TRACKACTIVATE, FALSE, Tool_Of(owner_));
}

}  // namespace win32
