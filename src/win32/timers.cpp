#include "win32/timers.h"

#include <algorithm>

namespace win32 {

void Timers::Start(toolkit::Timer& timer) {
  running_.push_back({&timer, ++last_number_});
  SetTimer(Window(), last_number_, static_cast<UINT>(timer.Interval), nullptr);
}

void Timers::Stop(toolkit::Timer& timer) {
  const auto found =
      std::find_if(running_.begin(), running_.end(), [&](const Running& running) { return running.Timer == &timer; });
  if (found == running_.end()) return;
  KillTimer(Window(), found->Number);
  running_.erase(found);
}

bool Timers::Take_Tick(const MSG& message) {
  return message.message == WM_TIMER && message.hwnd == Window() && Take(WM_TIMER, message.wParam);
}

bool Timers::Message(UINT message, WPARAM w) {
  if (message != WM_TIMER) return false;
  const auto found =
      std::find_if(running_.begin(), running_.end(), [w](const Running& running) { return running.Number == w; });
  if (found == running_.end()) return true;
  const toolkit::Timer& timer = *found->Timer;
  if (timer.On_Tick) timer.On_Tick();
  return true;
}

}  // namespace win32
