// Timers and the measure of texts.
#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "toolkit/timer.h"

using memory::Memory_Platform;

namespace {

class Memory_Backend_Test : public ::testing::Test {
 protected:
  void Pass(std::int64_t milliseconds) { Platform.Time.Run_Until(Platform.Time.Elapsed() + milliseconds * 1000); }
  double Height(std::string_view text, double width) { return Platform.Backend().Text_Height({}, text, width); }
  std::size_t Beginning(std::string_view text, double limit) {
    return Platform.Backend().Longest_Beginning({}, text, limit);
  }

  Memory_Platform Platform;
  toolkit::Timer Timer{Platform.Backend(), "Timer", 100};
  int Ticks = 0;
};

}  // namespace

TEST_F(Memory_Backend_Test, A_timer_ticks_each_time_its_interval_has_passed) {
  Timer.On_Tick = [this] { ++Ticks; };
  Timer.Enable();
  Pass(99);
  EXPECT_EQ(Ticks, 0);
  Pass(1);
  EXPECT_EQ(Ticks, 1);
  Pass(1000);
  EXPECT_EQ(Ticks, 11);
}

TEST_F(Memory_Backend_Test, A_disabled_timer_stops_at_once_and_begins_anew) {
  Timer.On_Tick = [this] {
    ++Ticks;
    Timer.Disable();
  };
  Timer.Enable();
  Pass(1050);
  EXPECT_EQ(Ticks, 1);
  Timer.Enable();
  Pass(99);
  EXPECT_EQ(Ticks, 1);
  Pass(1);
  EXPECT_EQ(Ticks, 2);
}

TEST_F(Memory_Backend_Test, A_tick_that_waits_is_entered_again) {
  int depth = 0;
  int deepest = 0;
  Timer.On_Tick = [&] {
    deepest = std::max(deepest, ++depth);
    if (++Ticks == 1) Platform.Loop.Serve(250'000);
    --depth;
  };
  Timer.Enable();
  Pass(100);
  EXPECT_EQ(Ticks, 3);
  EXPECT_EQ(deepest, 2);
}

TEST_F(Memory_Backend_Test, An_error_in_a_tick_ends_the_program) {
  Timer.On_Tick = [] { throw basic::Run_Error(basic::Error_Number::Overflow); };
  Timer.Enable();
  EXPECT_THROW(Pass(100), platform::Program_Quit);
  EXPECT_EQ(Platform.Loop.Failure(), 6);
}

TEST_F(Memory_Backend_Test, A_timer_that_is_gone_ticks_no_more) {
  {
    toolkit::Timer gone(Platform.Backend(), "Gone", 10);
    gone.On_Tick = [this] { ++Ticks; };
    gone.Enable();
  }
  Pass(100);
  EXPECT_EQ(Ticks, 0);
}

TEST_F(Memory_Backend_Test, Every_character_is_equally_wide_but_line_ends_have_no_width) {
  auto& backend = Platform.Backend();
  EXPECT_EQ(backend.Text_Width({}, "abc"), 270);
  EXPECT_EQ(backend.Text_Width({"Arial", 8.25, true}, "a\r\nb"), 180);
  Platform.Windows_And_Timers.Set_Character_Width(70);
  EXPECT_EQ(backend.Text_Width({}, "&&"), 140);
}

TEST_F(Memory_Backend_Test, The_longest_beginning_is_narrower_than_the_limit) {
  EXPECT_EQ(Beginning("abcdef", 270), 2U);
  EXPECT_EQ(Beginning("abcdef", 271), 3U);
  EXPECT_EQ(Beginning("ab\r\ncdef", 271), 5U);
  EXPECT_EQ(Beginning("abc", 10000), 3U);
  EXPECT_EQ(Beginning("abc", 0), 0U);
}

TEST_F(Memory_Backend_Test, Texts_break_at_blanks_where_the_width_ends) {
  EXPECT_EQ(Height("", 900), 195);
  EXPECT_EQ(Height("ten chars.", 900), 195);
  EXPECT_EQ(Height("ten chars, and more", 900), 390);
  EXPECT_EQ(Height("ten chars       , more", 900), 390);
  EXPECT_EQ(Height("unbreakable_word", 900), 195);
  EXPECT_EQ(Height("a unbreakable_word b", 900), 585);
  EXPECT_EQ(Height("a\r\nb\nc", 900), 585);
}

TEST_F(Memory_Backend_Test, The_screen_is_measured_in_twips) {
  Platform.Screen.Set_Size(800, 600);
  EXPECT_EQ(Platform.Backend().Screen_Size(toolkit::Axis::Across), 12000);
  EXPECT_EQ(Platform.Backend().Screen_Size(toolkit::Axis::Down), 9000);
  EXPECT_EQ(Platform.Screen.Work_Area().Width, 800);
  Platform.Screen.Set_Work_Area({0, 30, 800, 570});
  EXPECT_EQ(Platform.Screen.Work_Area().Top, 30);
}
