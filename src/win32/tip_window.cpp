#include "win32/tip_window.h"

#include <commctrl.h>

namespace win32 {

namespace {

constexpr int widest_tip = 32767;  // pixels: a tip that has a greatest width breaks its lines at line ends

TTTOOLINFOA Tool_Of(HWND owner) {
  TTTOOLINFOA tool = {};
  tool.cbSize = TTTOOLINFOA_V1_SIZE;  // the size that every version of the library knows
  tool.hwnd = owner;
  tool.uId = 1;
  return tool;
}

void Send_Tool(HWND window, UINT message, const TTTOOLINFOA& tool) {
  SendMessageA(window, message, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

bool Tip_Window::Make(HWND owner) {
  if (window_) return true;
  if (!controls_.Start()) return false;
  owner_ = owner;
  window_.Reset(Made(CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                                     0, 0, 0, 0, owner, nullptr, GetModuleHandleA(nullptr), nullptr)));
  SendMessageA(window_.Get(), TTM_SETMAXTIPWIDTH, 0, widest_tip);
  return true;
}

void Tip_Window::Watch(HWND owner, const RECT& place, const std::string& text) {
  if (watching_ && EqualRect(&place, &place_) != 0 && text == text_) return;
  Remove();
  if (!Make(owner)) return;
  place_ = place;
  text_ = text;
  TTTOOLINFOA tool = Tool_Of(owner);
  tool.rect = place;
  tool.lpszText = text_.data();
  Send_Tool(window_.Get(), TTM_ADDTOOLA, tool);
  watching_ = true;
}

void Tip_Window::Remove() {
  if (!watching_) return;
  SendMessageA(window_.Get(), TTM_POP, 0, 0);
  Send_Tool(window_.Get(), TTM_DELTOOLA, Tool_Of(owner_));
  watching_ = false;
}

void Tip_Window::Forget() {
  watching_ = false;
  window_.Reset();
}

void Tip_Window::Relay(HWND owner, UINT message, WPARAM w, LPARAM l) const {
  if (!watching_) return;
  MSG copy = {};
  copy.hwnd = owner;
  copy.message = message;
  copy.wParam = w;
  copy.lParam = l;
  SendMessageA(window_.Get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

}  // namespace win32
