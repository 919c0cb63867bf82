#include "memory/memory_loop.h"

#include <gtest/gtest.h>

#include "basic/run_error.h"

using memory::Endless_Wait;
using memory::Memory_Loop;
using memory::Virtual_Time;
using platform::Program_Quit;

namespace {

class Memory_Loop_Test : public ::testing::Test {
 protected:
  Virtual_Time Time;
  Memory_Loop Loop{Time};
};

void Overflow() { throw basic::Run_Error(basic::Error_Number::Overflow); }

}  // namespace

TEST_F(Memory_Loop_Test, A_wait_handles_the_next_event_of_its_span_and_returns) {
  int handled = 0;
  Time.Schedule(10, [&] { ++handled; });
  Time.Schedule(20, [&] { ++handled; });
  Loop.Wait_Events(100);
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(Time.Elapsed(), 10);
}

TEST_F(Memory_Loop_Test, A_wait_without_events_lets_its_span_pass) {
  Time.Schedule(200, [] { FAIL(); });
  Loop.Wait_Events(100);
  EXPECT_EQ(Time.Elapsed(), 100);
}

TEST_F(Memory_Loop_Test, A_wait_throws_once_the_program_is_to_quit) {
  Loop.Quit();
  EXPECT_THROW(Loop.Wait_Events(100), Program_Quit);
  EXPECT_EQ(Time.Elapsed(), 0);
}

TEST_F(Memory_Loop_Test, A_wait_throws_when_its_event_quits) {
  Time.Schedule(10, [this] { Loop.Quit(); });
  EXPECT_THROW(Loop.Wait_Events(100), Program_Quit);
}

TEST_F(Memory_Loop_Test, Serving_handles_all_events_of_its_span) {
  int handled = 0;
  for (const int due : {10, 20, 100, 101}) Time.Schedule(due, [&] { ++handled; });
  Loop.Serve(100);
  EXPECT_EQ(handled, 3);
  EXPECT_EQ(Time.Elapsed(), 100);
}

TEST_F(Memory_Loop_Test, Serving_stops_when_an_event_quits) {
  Time.Schedule(10, [this] { Loop.Quit(); });
  Time.Schedule(20, [] { FAIL(); });
  EXPECT_THROW(Loop.Serve(100), Program_Quit);
}

TEST_F(Memory_Loop_Test, An_error_that_a_handler_lets_out_ends_the_program) {
  EXPECT_THROW(Loop.Dispatch(Overflow), Program_Quit);
  EXPECT_TRUE(Loop.Quitting());
  EXPECT_EQ(Loop.Failure(), 6);
}

TEST_F(Memory_Loop_Test, A_handler_that_waits_cant_catch_the_error_of_another_one) {
  Time.Schedule(10, [this] { Loop.Dispatch(Overflow); });
  const auto waiting = [this] {
    try {
      Loop.Wait_Events(100);
    } catch (const basic::Run_Error&) {
      FAIL();
    }
  };
  EXPECT_THROW(Loop.Dispatch(waiting), Program_Quit);
}

TEST_F(Memory_Loop_Test, A_handler_that_quits_is_the_last_one) {
  EXPECT_THROW(Loop.Dispatch([this] { Loop.Quit(); }), Program_Quit);
  EXPECT_FALSE(Loop.Failure());
}

TEST_F(Memory_Loop_Test, A_new_program_begins_without_the_old_ones_end) {
  EXPECT_THROW(Loop.Dispatch(Overflow), Program_Quit);
  Loop.Reset();
  EXPECT_FALSE(Loop.Quitting());
  EXPECT_FALSE(Loop.Failure());
  Loop.Wait_Events(1);
}

TEST_F(Memory_Loop_Test, A_wait_beyond_all_patience_is_given_up) {
  Loop.Set_Patience(1000);
  EXPECT_THROW(for (;;) Loop.Wait_Events(100), Endless_Wait);
  EXPECT_GT(Time.Elapsed(), 1000);
}
