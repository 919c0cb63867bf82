// What a tick asks of the system.
#include <gtest/gtest.h>

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

platform::System System_With(platform::Clock& clock, const platform::System& all) {
  return {clock,         all.Locale,   all.Files,      all.Loop,       all.Message_Box, all.Popup_Menu,
          all.Store,     all.Screen,   all.Instances,  all.Shell,      all.Registry,    all.Profiles,
          all.Wallpaper, all.Pictures, all.Shell_Open, all.File_Dialog};
}

}  // namespace

// Ten times a second for years: on some systems each reading looks after the time zone anew.
TEST(Date_Watch, Reads_the_clock_once_a_tick) {
  memory::Memory_Platform platform;
  platform.Time.Set_Now({basic::Date_Serial(2004, 3, 5), 0});
  platform.Begin_Program();
  const platform::System all = platform.System();
  Counted_Clock clock(all.Clock);
  Meridex program(platform.Backend(), System_With(clock, all));
  platform.Loop.Dispatch([&] { program.Start(); });
  const auto pass = [&](std::int64_t seconds) {
    platform.Time.Run_Until(platform.Time.Elapsed() + seconds * 1'000'000);
  };
  pass(5);
  clock.Readings = 0;
  pass(60);
  EXPECT_EQ(clock.Readings, 600);
  platform.End_Program();
}
