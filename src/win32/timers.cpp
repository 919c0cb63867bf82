#include "win32/timers.h"

#include <algorithm>

namespace win32 {

void Timers::Start(toolkit::Timer& timer) {
  running_.push_back(&timer);
  SetTimer(Window(), reinterpret_cast<UINT_PTR>(&timer), static_cast<UINT>(timer.Interval), nullptr);
}

void Timers::Stop(toolkit::Timer& timer) {
  KillTimer(Window(), reinterpret_cast<UINT_PTR>(&timer));
  std::erase(running_, &timer);
}

bool Timers::Message(UINT message, WPARAM w) {
  if (message != WM_TIMER) return false;
  auto* const timer = reinterpret_cast<toolkit::Timer*>(w);
  // A tick may still be in the queue when its timer has been stopped.
  const bool running = std::find(running_.begin(), running_.end(), timer) != running_.end();
  if (running && timer->On_Tick) timer->On_Tick();
  return true;
}

}  // namespace win32
