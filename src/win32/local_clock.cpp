#include "win32/local_clock.h"

#include "win32/windows_api.h"

namespace win32 {

basic::Moment Local_Clock::Now() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  const std::int64_t seconds = (time.wHour * 60 + time.wMinute) * 60 + time.wSecond;
  return {basic::Date_Serial(time.wYear, time.wMonth, time.wDay), (seconds * 1000 + time.wMilliseconds) * 1000};
}

}  // namespace win32
