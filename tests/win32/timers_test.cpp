// The timers of the hidden window.
#include "toolkit/timer.h"

#include <optional>

#include "tests/win32/window_on_screen.h"

using Timers_Test = Window_On_Screen;

namespace {

WPARAM last_number = 0;

/// Notes the number of each tick that a window gets.
LRESULT CALLBACK Note_Number(int code, WPARAM w, LPARAM l) {
  const MSG& message = *reinterpret_cast<const MSG*>(l);
  if (code == HC_ACTION && w == PM_REMOVE && message.message == WM_TIMER) last_number = message.wParam;
  return CallNextHookEx(nullptr, code, w, l);
}

}  // namespace

TEST_F(Timers_Test, A_tick_that_was_waiting_doesnt_reach_a_later_timer_at_the_same_place) {
  const HHOOK hook = SetWindowsHookExA(WH_GETMESSAGE, Note_Number, nullptr, GetCurrentThreadId());
  int ticks = 0;
  std::optional<toolkit::Timer> timer;
  const auto start = [&](int interval) {
    timer.emplace(Backend, "Start_Timer", interval);
    timer->On_Tick = [&] { ++ticks; };
    timer->Enable();
  };
  start(10);
  while (ticks == 0) Wait(10);
  timer.reset();
  UnhookWindowsHookEx(hook);
  ticks = 0;
  start(600000);
  PostMessageA(FindWindowA("Meridex_Timers", nullptr), WM_TIMER, last_number, 0);
  Wait(50);
  EXPECT_EQ(ticks, 0);
}
