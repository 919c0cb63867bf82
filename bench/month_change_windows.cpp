// What a month change costs beside the bare reading of the event file, in the Windows build: the real service reads the
// files, the windows are in memory. It takes the calendar.dat beside the executable and prints "name value" lines.
#include <windows.h>

#include <cstdio>
#include <exception>

#include "bench/bench_program.h"
#include "bench/floors.h"
#include "win32/disk_files.h"

namespace {

constexpr double batch = 0.25;  // seconds: the system counts a process's time in steps of 10 ms
constexpr int batches = 6;

/// Seconds that the process has spent so far; other programs' load on the machine doesn't count in it.
double Processor_Seconds() {
  FILETIME made, ended, system, own;
  GetProcessTimes(GetCurrentProcess(), &made, &ended, &system, &own);
  const auto seconds = [](const FILETIME& time) {
    return (time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime) / 1e7;
  };
  return seconds(system) + seconds(own);
}

/// How often the work is done in about the time of a batch.
template <class Work>
int Times_In_A_Batch(Work work) {
  const double start = Processor_Seconds();
  int times = 0;
  for (; Processor_Seconds() - start < batch; ++times) work();
  return times;
}

/// The seconds that the work takes each time.
template <class Work>
double Time_Of(Work work, int times) {
  const double start = Processor_Seconds();
  for (int i = 0; i < times; ++i) work();
  return (Processor_Seconds() - start) / times;
}

/// Floor and month change in turns, so that both meet the same machine.
void Measure() {
  win32::Disk_Files files;
  const std::string path = files.Program_Folder() + "\\calendar.dat";
  bench::Bench_Program program(files);
  std::vector<char> buffer;
  std::size_t quotes = 0;
  const auto floor = [&] { quotes = bench::Kept_Buffer_And_Sse2(path, buffer); };
  const auto there_and_back = [&] {
    program.Previous_Month();
    program.Next_Month();
  };
  const int floor_times = Times_In_A_Batch(floor), change_times = Times_In_A_Batch(there_and_back);
  double floor_time = 0, change_time = 0;
  for (int i = 0; i < batches; ++i) {
    floor_time += Time_Of(floor, floor_times) / batches;
    change_time += Time_Of(there_and_back, change_times) / 2 / batches;
  }
  std::printf("floor_ms %.4f\nchange_ms %.4f\nquotes %u\nboxes %d\n", floor_time * 1e3, change_time * 1e3,
              static_cast<unsigned>(quotes), program.Boxes_With_Events());
}

}  // namespace

int main() {
  try {
    Measure();
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_month_change: %s\n", error.what());
    return 1;
  }
}
