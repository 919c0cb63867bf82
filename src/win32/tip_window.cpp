#include "win32/tip_window.h"

#include <commctrl.h>

namespace win32 {

void Tip_Window::Watch(HWND owner, const RECT& place, const std::string& text) {
  if (watching_ && EqualRect(&place, &place_) != 0 && text == text_) return;
  Remove();
  if (!tool_.Make(owner)) return;
  place_ = place;
  text_ = text;
  tool_.Send_Tool(TTM_ADDTOOLA, 0, text, place);
  watching_ = true;
}

void Tip_Window::Remove() {
  if (!watching_) return;
  tool_.Send(TTM_POP);
  tool_.Send_Tool(TTM_DELTOOLA);
  watching_ = false;
}

void Tip_Window::Forget() {
  watching_ = false;
  tool_.Forget();
}

void Tip_Window::Relay(HWND owner, UINT message, WPARAM w, LPARAM l) const {
  if (!watching_) return;
  MSG copy = {};
  copy.hwnd = owner;
  copy.message = message;
  copy.wParam = w;
  copy.lParam = l;
  tool_.Send(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

}  // namespace win32
