#include "win32/tip_tool.h"

#include <commctrl.h>

namespace win32 {

bool Tip_Tool::Make(HWND owner) {
  constexpr int widest_tip = 32767;  // pixels: a tip that has a greatest width breaks its lines at line ends
  if (window_) return true;
  if (!controls_.Start()) return false;
  owner_ = owner;
  window_.Reset(Made(CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                                     0, 0, 0, 0, owner, nullptr, GetModuleHandleA(nullptr), nullptr)));
  Send(TTM_SETMAXTIPWIDTH, 0, widest_tip);
  return true;
}

void Tip_Tool::Send_Tool(UINT message, WPARAM w, std::string text, const RECT& place) const {
  TTTOOLINFOA tool = {};
  tool.cbSize = TTTOOLINFOA_V1_SIZE;  // the size that every version of the library knows
  tool.uFlags = flags_;
  tool.hwnd = owner_;
  tool.uId = 1;
  tool.rect = place;
  tool.lpszText = text.data();
  Send(message, w, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace win32
