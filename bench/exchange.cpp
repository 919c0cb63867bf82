// What CSV files cost natively, over files in memory: the export of as many events as there can be, and the import of ten
// thousand rows, each of which rewrites the event file. The options are Google Benchmark's.
#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>

#include "main/meridex.h"
#include "memory/memory_platform.h"

namespace {

constexpr int first_day = 30000;  // in 1982

std::string Date_Of(int day) {
  const basic::Civil_Date date = basic::Civil_From_Serial(day);
  return std::to_string(date.Day) + "/" + std::to_string(date.Month) + "/" + std::to_string(date.Year);
}

std::string Path(const char* name) { return memory::Memory_Files::Full_Path(name); }

/// The program with its settings window open.
class Open_Program {
 public:
  Open_Program() {
    platform_.Time.Set_Now({basic::Date_Serial(2004, 3, 5), 0});
    platform_.Begin_Program();
    program_ = std::make_unique<Meridex>(platform_.Backend(), platform_.System());
    platform_.Loop.Dispatch([this] { program_->Start(); });
    platform_.Windows().Find("Main_Frm")->On_Key_Up(toolkit::key_f8);
  }
  Open_Program(const Open_Program&) = delete;
  Open_Program& operator=(const Open_Program&) = delete;
  ~Open_Program() { platform_.End_Program(); }

  void Put(const char* name, const std::string& bytes) { platform_.Files.Put(Path(name), bytes); }
  void Remove(const char* name) { platform_.Files.Remove(Path(name)); }

  /// Throws std::runtime_error unless the file holds these bytes.
  void Expect(const char* name, const std::string& bytes) {
    if (platform_.Files.Bytes(Path(name)) != bytes) throw std::runtime_error(std::string("another ") + name);
  }

  /// Throws std::runtime_error unless the message begins as told.
  void Press(const char* name, int index, const char* file, const std::string& told) {
    platform_.File_Dialog.Prepare(Path(file));
    for (toolkit::Control* const control : platform_.Windows().Find("Settings_Frm")->Controls())
      if (control->Name == name && control->Index == index) return Click(*control, told);
    throw std::runtime_error("no such button");
  }

 private:
  void Click(const toolkit::Control& button, const std::string& told) {
    platform_.Loop.Dispatch([&] { button.On_Click(); });
    const auto messages = platform_.Message_Box.Take_Shown();
    if (messages.empty() || !messages.back().Text.starts_with(told)) throw std::runtime_error("not " + told);
  }

  memory::Memory_Platform platform_;
  std::unique_ptr<Meridex> program_;
};

void Export_Csv(benchmark::State& state) {
  std::string events;
  for (int i = 0; i < 32767; ++i) events += "\"" + Date_Of(first_day + i) + "=An event of an ordinary length\"\r\n";
  Open_Program program;
  program.Put("calendar.dat", events);
  for (auto _ : state) {
    state.PauseTiming();
    program.Remove("out.csv");
    state.ResumeTiming();
    program.Press("Export_Btn", 3, "out.csv", "Successfully exported 32767 ");
  }
}

void Import_Csv(benchmark::State& state) {
  std::string rows = "Subject,Start Date,Description\r\n", events;
  for (int i = 0; i < 10000; ++i) {
    const std::string date = Date_Of(first_day + i * 7919 % 10000);
    rows += "\"Event\",\"" + date + "\",\"An event of an ordinary length\"\r\n";
    events += "\"" + date + "=Event - An event of an ordinary length\"\r\n";
  }
  Open_Program program;
  program.Put("in.csv", rows);
  for (auto _ : state) {
    state.PauseTiming();
    // Without any file the lines that were read last would be kept.
    program.Put("calendar.dat", "");
    state.ResumeTiming();
    program.Press("Import_Btn", 2, "in.csv", "Successfully imported 10000 ");
  }
  program.Expect("calendar.dat", events);
}

BENCHMARK(Export_Csv)->Unit(benchmark::kMillisecond);
BENCHMARK(Import_Csv)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
