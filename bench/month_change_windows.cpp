// What a month change costs beside the bare reading of the event file, in the Windows build: the real service reads the
// files, the windows are in memory. It takes the calendar.dat beside the executable and prints the milliseconds of both.
#include <cstdio>
#include <stdexcept>

#include "bench/bench_program.h"
#include "bench/floors.h"
#include "bench/stopwatch.h"
#include "win32/disk_files.h"

namespace {

using bench::Processor_Seconds;

constexpr double batch = 0.25;  // seconds: the system counts a process's time in steps of 10 ms
constexpr int batches = 6;

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
  const auto floor = [&] { quotes += bench::Kept_Buffer_And_Sse2(path, buffer); };
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
  if (quotes == 0 || program.Boxes_With_Events() == 0) throw std::runtime_error("no event was read");
  std::printf("%.4f %.4f\n", floor_time * 1e3, change_time * 1e3);
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
