// The clock beside the system's own local time.
#include "win32/local_clock.h"

#include <gtest/gtest.h>

#include "win32/windows_api.h"

namespace {

basic::Moment Systems_Moment() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  const std::int64_t seconds = (time.wHour * 60 + time.wMinute) * 60 + time.wSecond;
  return {basic::Date_Serial(time.wYear, time.wMonth, time.wDay), (seconds * 1000 + time.wMilliseconds) * 1000};
}

std::int64_t Micros(const basic::Moment& moment) {
  return std::int64_t{moment.Day} * 24 * 3600 * 1'000'000 + moment.Micros;
}

}  // namespace

TEST(Local_Clock_Test, It_goes_with_the_systems_local_time_over_the_ends_of_seconds) {
  win32::Local_Clock clock;
  constexpr int millisecond = 1000;
  for (int i = 0; i < 60; ++i) {
    const std::int64_t before = Micros(Systems_Moment());
    const std::int64_t told = Micros(clock.Now());
    const std::int64_t after = Micros(Systems_Moment());
    EXPECT_GE(told, before);
    EXPECT_LE(told, after + millisecond);
    Sleep(40);
  }
}
