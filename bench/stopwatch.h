// The processor time of the measurement: other programs' load on the machine doesn't count in it.
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include <ctime>
#endif

namespace bench {

/// Seconds since some moment, of this thread; of the whole process on Windows, where they go on in steps of 10 ms.
inline double Processor_Seconds() {
#ifdef _WIN32
  FILETIME made, ended, system, own;
  GetProcessTimes(GetCurrentProcess(), &made, &ended, &system, &own);
  const auto seconds = [](const FILETIME& time) {
    return (time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime) / 1e7;
  };
  return seconds(system) + seconds(own);
#else
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
#endif
}

}  // namespace bench
