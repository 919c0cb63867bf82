// The wait inside a handler, at the end of a day too.
#include "platform/event_loop.h"

#include <gtest/gtest.h>

#include "memory/memory_clock.h"
#include "memory/memory_loop.h"

namespace {

constexpr std::int64_t a_second = memory::micros_of_a_second;
constexpr std::int64_t a_day = memory::micros_of_a_day;

class Time_Out_Test : public ::testing::Test {
 protected:
  Time_Out_Test() { Loop.Set_Patience(3 * a_day); }

  /// Waits 0.3 seconds from that time of a day on; gives the microseconds that have passed.
  std::int64_t Wait_From(std::int64_t of_the_day) {
    Time.Set_Now({38051, of_the_day});
    const std::int64_t start = Time.Elapsed();
    platform::Waits(Loop, Clock).TimeOut(0.3F);
    return Time.Elapsed() - start;
  }

  memory::Virtual_Time Time;
  memory::Memory_Clock Clock{Time};
  memory::Memory_Loop Loop{Time};
};

}  // namespace

TEST_F(Time_Out_Test, Ends_when_the_time_has_passed) {
  EXPECT_EQ(Wait_From(0), 300'000);
  EXPECT_EQ(Wait_From(a_day - a_second), 300'000);
}

TEST_F(Time_Out_Test, Serves_events_meanwhile) {
  bool served = false;
  Time.Schedule(100'000, [&] { served = true; });
  Wait_From(0);
  EXPECT_TRUE(served);
}

TEST_F(Time_Out_Test, Goes_on_until_the_next_day_if_midnight_overtakes_it) {
  // An event in the wait takes longer than the day does.
  Time.Schedule(100'000, [&] { Time.Run_Until(a_second); });
  EXPECT_EQ(Wait_From(a_day - 500'000), a_day + 300'000);
}

TEST_F(Time_Out_Test, Never_ends_if_its_end_lies_beyond_the_day) {
  EXPECT_THROW(Wait_From(a_day - 200'000), memory::Endless_Wait);
}
