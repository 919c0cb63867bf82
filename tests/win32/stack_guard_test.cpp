// A write past the locals of a function ends the program.
#include <gtest/gtest.h>

#include "win32/windows_api.h"

namespace {

/// Writes `size` bytes into sixteen.
__attribute__((noipa)) void Fill_Sixteen(int size) {
  volatile char bytes[16];
  volatile char* volatile to = bytes;
  for (int i = 0; i < size; ++i) to[i] = 'x';
}

}  // namespace

TEST(Stack_Guard, A_write_within_the_locals_goes_on) { Fill_Sixteen(16); }

TEST(Stack_GuardDeathTest, A_write_past_the_locals_ends_the_program) {
  constexpr int overrun = static_cast<int>(0xC0000409U);
  EXPECT_EXIT(Fill_Sixteen(64), ::testing::ExitedWithCode(overrun), "");
}
