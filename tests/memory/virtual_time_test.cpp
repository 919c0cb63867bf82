#include "memory/virtual_time.h"

#include <gtest/gtest.h>

#include <string>

using memory::Virtual_Time;

namespace {

class Virtual_Time_Test : public ::testing::Test {
 protected:
  /// Notes a letter when it is due.
  auto Note(char letter) {
    return [this, letter] { Log += letter; };
  }

  Virtual_Time Time;
  std::string Log;
};

}  // namespace

TEST_F(Virtual_Time_Test, Runs_what_is_due_in_order_of_its_time) {
  Time.Schedule(30, Note('c'));
  Time.Schedule(10, Note('a'));
  Time.Schedule(20, Note('b'));
  Time.Run_Until(100);
  EXPECT_EQ(Log, "abc");
  EXPECT_EQ(Time.Elapsed(), 100);
}

TEST_F(Virtual_Time_Test, Runs_what_is_due_at_one_moment_in_order_of_entry) {
  for (const char letter : {'a', 'b', 'c'}) Time.Schedule(10, Note(letter));
  Time.Run_Until(10);
  EXPECT_EQ(Log, "abc");
}

TEST_F(Virtual_Time_Test, Runs_what_is_due_at_the_very_end_and_nothing_later) {
  Time.Schedule(10, Note('a'));
  Time.Schedule(11, Note('b'));
  Time.Run_Until(10);
  EXPECT_EQ(Log, "a");
}

TEST_F(Virtual_Time_Test, Shows_an_action_the_moment_for_which_it_was_scheduled) {
  std::int64_t seen = 0;
  Time.Schedule(10, [&] { seen = Time.Elapsed(); });
  Time.Run_Until(100);
  EXPECT_EQ(seen, 10);
}

TEST_F(Virtual_Time_Test, Runs_what_an_action_adds_within_the_same_wait) {
  Time.Schedule(10, [this] { Time.Schedule(10, Note('b')); });
  Time.Run_Until(10);
  EXPECT_EQ(Log, "b");
}

TEST_F(Virtual_Time_Test, Leaves_out_what_was_cancelled) {
  const auto ticket = Time.Schedule(10, Note('a'));
  Time.Cancel(ticket);
  Time.Cancel(ticket);
  Time.Run_Until(100);
  EXPECT_EQ(Log, "");
}

TEST_F(Virtual_Time_Test, A_wait_within_an_action_serves_what_is_due_and_doesnt_run_the_action_again) {
  Time.Schedule(10, [this] {
    Log += '(';
    Time.Run_Until(Time.Elapsed() + 20);
    Log += ')';
  });
  Time.Schedule(15, Note('a'));
  Time.Schedule(40, Note('b'));
  Time.Run_Until(50);
  EXPECT_EQ(Log, "(a)b");
}

TEST_F(Virtual_Time_Test, A_wait_ends_behind_its_target_after_a_longer_one_within) {
  Time.Schedule(10, [this] { Time.Run_Until(500); });
  Time.Run_Until(50);
  EXPECT_EQ(Time.Elapsed(), 500);
}

TEST_F(Virtual_Time_Test, A_step_runs_one_action_and_then_lets_the_span_pass) {
  Time.Schedule(10, Note('a'));
  Time.Schedule(10, Note('b'));
  EXPECT_TRUE(Time.Step(50));
  EXPECT_EQ(Log, "a");
  EXPECT_EQ(Time.Elapsed(), 10);
  EXPECT_TRUE(Time.Step(50));
  EXPECT_FALSE(Time.Step(50));
  EXPECT_EQ(Time.Elapsed(), 50);
}

TEST_F(Virtual_Time_Test, The_wall_clock_runs_with_the_time) {
  Time.Set_Now({38051, 0});
  Time.Run_Until(90'000'000);
  EXPECT_EQ(Time.Now(), (basic::Moment{38051, 90'000'000}));
}

TEST_F(Virtual_Time_Test, The_wall_clock_goes_over_midnight) {
  Time.Set_Now({38051, 86'399'000'000});
  Time.Run_Until(1'000'000);
  EXPECT_EQ(Time.Now(), (basic::Moment{38052, 0}));
}

TEST_F(Virtual_Time_Test, Knows_moments_before_day_0) {
  Time.Set_Now({-3, 5});
  EXPECT_EQ(Time.Now(), (basic::Moment{-3, 5}));
}

TEST_F(Virtual_Time_Test, Setting_the_wall_clock_lets_nothing_fall_due) {
  Time.Schedule(10, Note('a'));
  Time.Set_Now({50000, 0});
  EXPECT_EQ(Log, "");
  Time.Run_Until(10);
  EXPECT_EQ(Log, "a");
}
