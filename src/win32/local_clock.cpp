#include "win32/local_clock.h"

#include "win32/windows_api.h"

namespace win32 {

namespace {

constexpr std::uint64_t counts_a_second = 10'000'000;  // the system counts by 100 ns

/// The time zones of the world differ by whole seconds, so that a second's start is one in local time too.
basic::Moment Start_In_Local_Time(std::uint64_t second) {
  const std::uint64_t count = second * counts_a_second;
  const FILETIME time = {static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)};
  FILETIME local_time = {};
  FileTimeToLocalFileTime(&time, &local_time);
  SYSTEMTIME parts = {};
  FileTimeToSystemTime(&local_time, &parts);
  const std::int64_t seconds = (parts.wHour * 60 + parts.wMinute) * 60 + parts.wSecond;
  return {basic::Date_Serial(parts.wYear, parts.wMonth, parts.wDay), seconds * 1'000'000};
}

}  // namespace

basic::Moment Local_Clock::Now() {
  FILETIME time;
  GetSystemTimeAsFileTime(&time);
  const std::uint64_t count = std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
  const std::uint64_t second = count / counts_a_second;
  if (second != second_) {
    second_ = second;
    start_ = Start_In_Local_Time(second);
  }
  return {start_.Day, start_.Micros + static_cast<std::int64_t>(count % counts_a_second / 10)};
}

}  // namespace win32
