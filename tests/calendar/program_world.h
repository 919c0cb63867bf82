// The whole program over the in-memory platform.
#pragma once

#include <memory>
#include <string>

#include "main/meridex.h"
#include "memory/memory_platform.h"

class Program_World {
 public:
  memory::Memory_Platform Platform;
  std::unique_ptr<Meridex> Program;

  Program_World() { Platform.Time.Set_Now({basic::Date_Serial(2004, 3, 5), 0}); }
  Program_World(const Program_World&) = delete;
  Program_World& operator=(const Program_World&) = delete;
  ~Program_World() { Platform.End_Program(); }

  /// Starts the program anew.
  void Start() {
    Platform.End_Program();
    Program.reset();
    Platform.Begin_Program();
    Program = std::make_unique<Meridex>(Platform.Backend(), Platform.System());
    Platform.Loop.Dispatch([this] { Program->Start(); });
  }

  void Pass(double seconds) {
    Platform.Time.Run_Until(Platform.Time.Elapsed() + static_cast<std::int64_t>(seconds * 1e6));
  }

  [[nodiscard]] toolkit::Form* Window(const char* name) { return Platform.Windows_And_Timers.Windows.Find(name); }

  /// The texts of the boxes since the last call, a line each.
  std::string Messages() {
    std::string texts;
    for (const auto& shown : Platform.Message_Box.Take_Shown()) texts += shown.Text + '\n';
    return texts;
  }
};
