// The processor time of the measuring thread: other programs' load on the machine doesn't count in it.
#pragma once

#include <ctime>

namespace bench {

/// Seconds since some moment.
inline double Processor_Seconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

}  // namespace bench
