// What a month change costs beside the bare reading of the event file, natively: bench_month_change FOLDER [OPTION]...
// FOLDER holds 1000/calendar.dat and 32767/calendar.dat; the options are Google Benchmark's.
#include <benchmark/benchmark.h>

#include "bench/bench_program.h"
#include "bench/floors.h"
#include "bench/posix_files.h"
#include "bench/stopwatch.h"

namespace {

std::string data_folder;

std::string Folder_Of(const benchmark::State& state) { return data_folder + "/" + std::to_string(state.range(0)); }

/// From the release of the button over the arrow to the month standing in its labels.
void Month_Change(benchmark::State& state) {
  bench::Posix_Files files(Folder_Of(state));
  bench::Bench_Program program(files);
  for (auto _ : state) {
    program.Previous_Month();
    const double start = bench::Processor_Seconds();
    program.Next_Month();
    state.SetIterationTime(bench::Processor_Seconds() - start);
  }
  if (program.Boxes_With_Events() == 0) state.SkipWithError("the month on view shows no event");
}

void Fresh_Buffer_And_Memchr(benchmark::State& state) {
  const std::string path = Folder_Of(state) + "/calendar.dat";
  for (auto _ : state) {
    const double start = bench::Processor_Seconds();
    benchmark::DoNotOptimize(bench::Fresh_Buffer_And_Memchr(path));
    state.SetIterationTime(bench::Processor_Seconds() - start);
  }
}

BENCHMARK(Month_Change)->Arg(1000)->Arg(32767)->UseManualTime();
BENCHMARK(Fresh_Buffer_And_Memchr)->Arg(32767)->UseManualTime();

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count != 2) return 2;
  data_folder = arguments[1];
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
