// What a month change costs beside the bare reading of the event file, in the Windows build: the real service reads the
// files, the windows are in memory. It takes the calendar.dat beside the executable and prints "name value" lines.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>

#include "bench/bench_program.h"
#include "bench/floors.h"
#include "platform/win32/disk_files.h"

namespace {

constexpr int rounds = 151;

/// The milliseconds that the work takes.
template <class Work>
double Time_Of(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

/// Floor and month change in turns, so that both meet the same machine.
void Measure() {
  platform::win32::Disk_Files files;
  const std::string path = files.Program_Folder() + "\\calendar.dat";
  bench::Bench_Program program(files);
  std::vector<char> buffer;
  std::vector<double> floors, changes, ratios;
  for (int i = 0; i < rounds; ++i) {
    floors.push_back(Time_Of([&] { bench::Kept_Buffer_And_Sse2(path, buffer); }));
    program.Previous_Month();
    changes.push_back(Time_Of([&] { program.Next_Month(); }));
    ratios.push_back(changes.back() / floors.back());
  }
  std::printf("floor_ms %.4f\nchange_ms %.4f\nratio %.3f\nboxes %d\n", Median(floors), Median(changes), Median(ratios),
              program.Boxes_With_Events());
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
