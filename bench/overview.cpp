// What the list of all events costs natively, from the file to the sorted and filled list: bench_overview FOLDER [OPTION]...
// FOLDER holds calendar.dat; the options are Google Benchmark's.
#include <benchmark/benchmark.h>

#include "bench/bench_program.h"
#include "bench/posix_files.h"

namespace {

std::string data_folder;

void Sort_And_Show(benchmark::State& state) {
  bench::Posix_Files files(data_folder);
  bench::Bench_Program program(files);
  program.Open_Settings();
  int entries = 0;
  for (auto _ : state) entries = program.Sort_Events();
  state.counters["entries"] = entries;
}

BENCHMARK(Sort_And_Show)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count != 2) return 2;
  data_folder = arguments[1];
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
