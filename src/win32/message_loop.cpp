#include "win32/message_loop.h"

#include <algorithm>

namespace win32 {

void Message_Loop::Run() {
  MSG message;
  while (!context_.Guard.Ending() && GetMessageA(&message, nullptr, 0, 0) > 0) Dispatch(message);
}

void Message_Loop::Wait_Events(std::int64_t micros) {
  context_.Guard.Throw_If_Ending();
  context_.Windows.Settle();
  if (Serve_Waiting()) return;
  constexpr std::int64_t longest_wait = 1000000;  // milliseconds; callers wait again if nothing has happened
  const auto wait = std::clamp<std::int64_t>((micros + 999) / 1000, 0, longest_wait);
  MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(wait), QS_ALLINPUT);
  Serve_Waiting();
}

/// Serves all messages in the queue. Returns false if there was none.
bool Message_Loop::Serve_Waiting() {
  bool any = false;
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    any = true;
    // The outer loops have to see the end too.
    if (message.message == WM_QUIT) context_.Guard.Quit();
    else Dispatch(message);
    context_.Guard.Throw_If_Ending();
  }
  return any;
}

void Message_Loop::Dispatch(MSG& message) {
  if (context_.Timers.Take_Tick(message)) return;
  bool taken = false;
  if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) {
    Program_Window* const window = context_.Windows.Around(message.hwnd);
    if (window != nullptr) context_.Guard.Run([&] { taken = window->Take_Key(message); });
  }
  if (taken) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

}  // namespace win32
