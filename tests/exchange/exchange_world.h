// The whole program with its settings window open, and a user who presses the buttons of imports and exports.
#pragma once

#include <gtest/gtest.h>

#include "tests/calendar/program_world.h"

class Exchange_World : public ::testing::Test {
 protected:
  Exchange_World() { Open(); }

  /// Starts the program anew and opens the window.
  void Open() {
    World.Start();
    World.Platform.Loop.Dispatch([this] { World.Window("Main_Frm")->On_Key_Up(toolkit::key_f8); });
    (void)World.Messages();
  }

  static std::string Path(const std::string& name) { return memory::Memory_Files::Full_Path(name); }
  void Put(const std::string& name, std::string_view bytes) { World.Platform.Files.Put(Path(name), bytes); }
  std::string File(const std::string& name) { return World.Platform.Files.Bytes(Path(name)).value_or("no file"); }

  /// Presses a button, and picks the file that its dialog asks for. Gives the messages.
  std::string Press(const char* button, int index, const std::string& file) {
    World.Platform.File_Dialog.Prepare(Path(file));
    toolkit::Control& control = Find(button, index);
    World.Platform.Loop.Dispatch([&] { control.On_Click(); });
    return World.Messages();
  }

  toolkit::Control& Find(const std::string& name, int index = -1) {
    for (toolkit::Control* const control : World.Window("Settings_Frm")->Controls())
      if (control->Name == name && control->Index == index) return *control;
    throw std::logic_error("no control " + name);
  }

  std::string Export_Csv() { return Press("Export_Btn", 3, "out.csv"); }
  std::string Import_Csv(const std::string& file = "in.csv") { return Press("Import_Btn", 2, file); }

  Program_World World;
};
