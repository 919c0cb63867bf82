#include "exchange/config.h"

#include "basic/convert.h"
#include "basic/record_reader.h"
#include "basic/text.h"

namespace exchange {

namespace {

using settings::Settings;

constexpr const char* config_filter = "Configuration File (*.ini)|*.ini";
constexpr File_Kind config_out = {"Export Configuration File", config_filter, ".ini"};
constexpr File_Kind config_in = {"Import Configuration File", config_filter};

/// In the order of the file, in which one stands twice.
const settings::Member order[config_lines] = {
    &Settings::Style,
    &Settings::Alignment,
    &Settings::Today,
    &Settings::Normal,
    &Settings::Fore,
    &Settings::Num,
    &Settings::Text,
    &Settings::Back,
    &Settings::Inactive,
    &Settings::Menu_Colour_Source,
    &Settings::Show_Alerts,
    &Settings::Use_Themes,
    &Settings::Use_Theme_Pos,
    &Settings::Use_Theme_Style,
    &Settings::Allow_Dragging,
    &Settings::Bar_Time,
    &Settings::Bar_Time_Format,
    &Settings::Bar_Date_Format,
    &Settings::Manual_PosX,
    &Settings::Manual_PosY,
    &Settings::Use_Other_Display_Mode,
    &Settings::Other_Display_Mode,
    &Settings::Auto_Compact,
    &Settings::Pack_Name,
    &Settings::Show_Splash,
    &Settings::Trans_Icons,
    &Settings::Timeout_Value,
    &Settings::Timeout_Format,
    &Settings::Carriage_Return,
    &Settings::Start_Day,
    &Settings::Auto_Compact,
    &Settings::Tooltips,
};

/// The groups of options share one number, in the order of their lines: a group of which none is on has that of the group
/// before, the first one 0.
Settings With_Options(const Shown_Values& shown) {
  Settings values = shown.Values;
  values.Style = shown.Style.value_or(0);
  values.Alignment = shown.Position.value_or(values.Style);
  values.Menu_Colour_Source = shown.Title_Row_Source.value_or(values.Alignment);
  values.Tooltips = shown.Tips.value_or(values.Menu_Colour_Source);
  return values;
}

/// A truth value is a number in the file, and the idle time what its list shows.
struct Value_Text {
  const Shown_Values& shown;
  const Settings values = With_Options(shown);

  std::string operator()(std::string Settings::*variable) const { return values.*variable; }
  std::string operator()(bool Settings::*variable) const { return values.*variable ? "1" : "0"; }
  std::string operator()(basic::Int16 Settings::*variable) const {
    return variable == &Settings::Timeout_Value ? shown.Idle_Time : basic::To_Text(values.*variable);
  }
  std::string operator()(std::int32_t Settings::*variable) const { return basic::To_Text(values.*variable); }
};

}  // namespace

std::string Config_Line(const Shown_Values& shown, int number) {
  const settings::Member& variable = order[number];
  return settings::Key_Of(variable).Config_Name + ("=" + std::visit(Value_Text{shown}, variable));
}

void Apply_Config_Line(std::string_view line, settings::Stored_Settings& stored) {
  const auto [name, value] = basic::Split_At_First(line, '=');
  if (const settings::Setting_Key* const key = settings::Key_Of_Config(name))
    stored.Take_Text(*key, std::string(value));
}

void Config::Export_Config() {
  try {
    if (!transfer_.Choose_Output(config_out)) return;
    Write_Lines();
    transfer_.Tell_With_File("Successfully exported current configuration to file...");
  } catch (const basic::Run_Error&) {
    transfer_.Warn("Error when exporting configuration to file.");
  }
}

void Config::Write_Lines() {
  basic::File_Channel& channel = transfer_.Channel;
  channel.Open_For_Writing(transfer_.Dialog1.FileName);
  const Written_At_Last rows(channel);
  const Shown_Values shown = window_.Shown();
  for (int i = 0; i < config_lines; ++i) channel.Write_Record(Config_Line(shown, i));
  channel.Close();
}

void Config::Import_Config() {
  try {
    if (!transfer_.Choose_Input(config_in)) return;
    Show_Pointer(toolkit::Pointer::Hourglass);
    Read_Lines();
    desk_.Apply_Pack(stored_.Values.Pack_Name);
    desk_.Lay_Out(desk_.Style_In_Force());
    desk_.Rebuild_Month();
    Show_Pointer(toolkit::Pointer::Default);
    transfer_.Tell("Loaded configuration file successfully.");
    transfer_.Window.Unload();
  } catch (const basic::Run_Error&) {
    Show_Pointer(toolkit::Pointer::Default);
    transfer_.Warn("Error when importing configuration from file.");
  }
}

void Config::Read_Lines() {
  basic::Record_Reader reader(transfer_.Channel.Open_For_Reading(transfer_.Dialog1.FileName));
  std::string_view record;
  while (reader.Next(record)) Apply_Config_Line(record, stored_);
  transfer_.Channel.Close();
}

}  // namespace exchange
