// What a tick asks of the system, beside a desktop that it looks after.
#include <gtest/gtest.h>

#include "bench/counting_new.h"
#include "main/meridex.h"
#include "memory/memory_platform.h"

namespace {

class Counted_Clock : public platform::Clock {
 public:
  explicit Counted_Clock(platform::Clock& clock) : clock_(clock) {}

  int Readings = 0;

  basic::Moment Now() override {
    ++Readings;
    return clock_.Now();
  }

 private:
  platform::Clock& clock_;
};

/// Remembers the timer of the tick.
class Watched_Backend : public memory::Memory_Backend {
 public:
  using Memory_Backend::Memory_Backend;

  void Start_Timer(toolkit::Timer& timer) override {
    if (timer.Name == "Dectect_Date_Timer") Date_Timer = &timer;
    Memory_Backend::Start_Timer(timer);
  }

  toolkit::Timer* Date_Timer = nullptr;
};

class Date_Watch : public ::testing::Test {
 protected:
  Date_Watch() {
    Platform.Store.Save("Meridex", "Settings", "Trans Icons", "1");
    Platform.Store.Save("Meridex", "Desktop", "Modern", "1");
    Program.Start();
    Pass(5);
  }
  ~Date_Watch() override { Backend.Windows.Silence(); }

  platform::System System() {
    Platform.Time.Set_Now({basic::Date_Serial(2004, 3, 5), 0});
    Platform.Begin_Program();
    Platform.Shell.Set_Chain(memory::Shell_Chain::Icon_List);
    const platform::System all = Platform.System();
    return {Clock,         all.Locale,   all.Files,      all.Loop,       all.Message_Box, all.Popup_Menu,
            all.Store,     all.Screen,   all.Instances,  all.Shell,      all.Registry,    all.Profiles,
            all.Wallpaper, all.Pictures, all.Shell_Open, all.File_Dialog};
  }

  void Pass(std::int64_t seconds) { Platform.Time.Run_Until(Platform.Time.Elapsed() + seconds * 1'000'000); }

  memory::Memory_Platform Platform;
  Counted_Clock Clock{Platform.Clock};
  Watched_Backend Backend{Platform.Time, Platform.Loop, Platform.Screen};
  Meridex Program{Backend, System()};
};

}  // namespace

// Ten times a second for years: on some systems each reading looks after the time zone anew.
TEST_F(Date_Watch, Reads_the_clock_once_a_tick) {
  for (const bool hangs : {false, true}) {
    Platform.Shell.Hang(hangs);
    Clock.Readings = 0;
    Pass(60);
    EXPECT_EQ(Clock.Readings, 600) << hangs;
  }
}

TEST_F(Date_Watch, Allocates_nothing_on_a_tick) {
  const auto allocations_of_ticks = [this] {
    const std::int64_t before = bench::Count_Allocations().Made;
    for (int tick = 0; tick < 100; ++tick) Backend.Date_Timer->On_Tick();
    return bench::Count_Allocations().Made - before;
  };
  EXPECT_EQ(allocations_of_ticks(), 0);
  Platform.Shell.Hang(true);
  EXPECT_EQ(allocations_of_ticks(), 0) << "beside a shell that hangs";
}
