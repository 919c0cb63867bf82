#include "toolkit/timer.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

using toolkit::Timer;

TEST(Timer, Stands_still_when_it_is_made) {
  Fake_Backend backend;
  const Timer timer(backend, "Dectect_Date_Timer", 100);
  EXPECT_FALSE(timer.Enabled());
  EXPECT_EQ(timer.Interval, 100);
  EXPECT_EQ(backend.Take(), Words{});
}

TEST(Timer, Starts_and_stops_once_however_often_it_is_told) {
  Fake_Backend backend;
  Timer timer(backend, "Dectect_Date_Timer", 100);
  timer.Enable();
  timer.Enable();
  EXPECT_TRUE(timer.Enabled());
  EXPECT_EQ(backend.Take(), Words{"start Dectect_Date_Timer"});
  timer.Disable();
  timer.Disable();
  EXPECT_FALSE(timer.Enabled());
  EXPECT_EQ(backend.Take(), Words{"stop Dectect_Date_Timer"});
}

TEST(Timer, Starts_again_after_a_stop) {
  Fake_Backend backend;
  Timer timer(backend, "Close_Timer", 100);
  timer.Enable();
  timer.Disable();
  timer.Enable();
  EXPECT_EQ(backend.Take(), (Words{"start Close_Timer", "stop Close_Timer", "start Close_Timer"}));
}

TEST(Timer, Stops_when_it_goes) {
  Fake_Backend backend;
  {
    Timer running(backend, "Start_Timer", 1500);
    running.Enable();
    backend.Take();
  }
  EXPECT_EQ(backend.Take(), Words{"stop Start_Timer"});
  { const Timer still(backend, "Start_Timer", 1500); }
  EXPECT_EQ(backend.Take(), Words{}) << "one that never ran has nothing to stop";
}

TEST(Timer, May_stop_itself_in_its_own_tick) {
  Fake_Backend backend;
  Timer timer(backend, "Start_Timer", 1500);
  timer.On_Tick = [&] { timer.Disable(); };
  timer.Enable();
  timer.On_Tick();
  EXPECT_FALSE(timer.Enabled());
  EXPECT_EQ(backend.Take(), (Words{"start Start_Timer", "stop Start_Timer"}));
}
