// What the tick costs natively, and what a day of ticks leaves behind: bench_tick FOLDER [OPTION]...
// FOLDER holds calendar.dat; the options are Google Benchmark's.
#include <benchmark/benchmark.h>

#include "bench/bench_program.h"
#include "bench/counting_new.h"
#include "bench/posix_files.h"

namespace {

std::string data_folder;

/// The tick that finds nothing to do, as all but a few are.
void Usual_Tick(benchmark::State& state) {
  bench::Posix_Files files(data_folder);
  bench::Bench_Program program(files);
  const std::int64_t before = bench::Count_Allocations().Made;
  for (auto _ : state) program.Tick();
  state.counters["allocations"] = static_cast<double>(bench::Count_Allocations().Made - before);
}

/// 24 hours of virtual time: 864,000 ticks, a midnight and the new day's reading of the file among them.
void Day_Of_Ticks(benchmark::State& state) {
  bench::Posix_Files files(data_folder);
  bench::Bench_Program program(files);
  program.Play(memory::micros_of_a_day);
  program.Forget_Messages();
  const std::int64_t before = bench::Count_Allocations().Live_Bytes;
  for (auto _ : state) program.Play(memory::micros_of_a_day);
  program.Forget_Messages();
  state.counters["growth"] = static_cast<double>(bench::Count_Allocations().Live_Bytes - before);
}

BENCHMARK(Usual_Tick);
BENCHMARK(Day_Of_Ticks)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count != 2) return 2;
  data_folder = arguments[1];
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
