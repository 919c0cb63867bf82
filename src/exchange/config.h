// The configuration file: what the settings window shows, carried to another computer.
#pragma once

#include "calendar/desk.h"
#include "exchange/transfer.h"
#include "exchange/window_values.h"
#include "settings/stored_settings.h"

namespace exchange {

constexpr int config_lines = 32;

/// A line of the file, a `key=value`; the first one is number 0.
std::string Config_Line(const Shown_Values& shown, int number);

/// Stores what one such line tells, and sets it in the program; an unknown key is passed over. Throws error 5 without a
/// "=", and error 6 or 13 for a value that the setting can't take; it is in the store by then.
void Apply_Config_Line(std::string_view line, settings::Stored_Settings& stored);

class Config {
 public:
  Config(Transfer& transfer, const Window_Values& window, settings::Stored_Settings& stored, calendar::Desk& desk)
      : transfer_(transfer), window_(window), stored_(stored), desk_(desk) {}

  /// Both report all that they have to say in boxes. An import that came through closes the window.
  void Export_Config();
  void Import_Config();

 private:
  void Write_Lines();
  void Read_Lines();
  void Show_Pointer(toolkit::Pointer pointer) { transfer_.Window.MousePointer = pointer; }

  Transfer& transfer_;
  const Window_Values& window_;
  settings::Stored_Settings& stored_;
  calendar::Desk& desk_;
};

}  // namespace exchange
