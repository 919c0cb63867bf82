#include "settings/setting_keys.h"

#include <algorithm>

namespace settings {

namespace {

constexpr const char* general = "Settings";
constexpr const char* colours = "Colours";

const Setting_Key keys[] = {
    {general, "Style", "1", &Settings::Style, "Style"},
    {general, "Alignment", "0", &Settings::Alignment, "TaskPos"},
    {general, "Pack Name", "Default", &Settings::Pack_Name, "Pack_Name"},
    {general, "Use Themes", "0", &Settings::Use_Themes, "Use_Themes"},
    {general, "Use Theme Pos", "1", &Settings::Use_Theme_Pos, "Use_Theme_Pos"},
    {general, "Use Theme Style", "1", &Settings::Use_Theme_Style, "Use_Theme_Style"},
    {general, "Show Alerts", "1", &Settings::Show_Alerts, "Show_Alerts"},
    {general, "Allow Dragging", "1", &Settings::Allow_Dragging, "Allow_Dragging"},
    {general, "Bar Time", "False", &Settings::Bar_Time, "Bar_Time"},
    {general, "Bar Time Format", "H:mm", &Settings::Bar_Time_Format, "Bar_Time_Format"},
    {general, "Bar Date Format", "d Month - yyyy", &Settings::Bar_Date_Format, "Bar_Date_Format"},
    {general, "Manual_PosX", "0", &Settings::Manual_PosX, "Manual_PosX"},
    {general, "Manual_PosY", "0", &Settings::Manual_PosY, "Manual_PosY"},
    {general, "Use Other Display Mode", "False", &Settings::Use_Other_Display_Mode, "Use_Other_Display_Mode"},
    {general, "Other Display Mode", "0", &Settings::Other_Display_Mode, "Other_Display_Mode"},
    {general, "Auto Compact", "0", &Settings::Auto_Compact, "Auto_Compact"},
    {general, "Tooltips", "1", &Settings::Tooltips, "Tooltips"},
    {general, "Settings Tab", "4", &Settings::Settings_Tab, nullptr},
    {general, "Start Day", "0", &Settings::Start_Day, "Start_Day"},
    {general, "Show Splash", "1", &Settings::Show_Splash, "Show_Splash"},
    {general, "Trans Icons", "0", &Settings::Trans_Icons, "Trans_Icons"},
    {general, "Timeout Value", "45", &Settings::Timeout_Value, "Timeout_Value"},
    {general, "Timeout Format", "0", &Settings::Timeout_Format, "Timeout_Format"},
    {general, "Carriage_Return", "0", &Settings::Carriage_Return, "Carriage_Return"},
    {colours, "Today", "16761024", &Settings::Today, "Col_Today"},
    {colours, "Normal", "16777215", &Settings::Normal, "Col_Normal"},
    {colours, "Fore", "16777215", &Settings::Fore, "Col_Fore"},
    {colours, "Num", "-2147483630", &Settings::Num, "Col_Num"},
    {colours, "Text", "-2147483630", &Settings::Text, "Col_Text"},
    {colours, "Back", "8390687", &Settings::Back, "Col_Back"},
    {colours, "Inactive", "-2147483645", &Settings::Inactive, "Col_Inactive"},
    {colours, "Menu Colour Source", "1", &Settings::Menu_Colour_Source, "Menu_Col_Sorce"},
};

}  // namespace

std::span<const Setting_Key> All_Keys() { return keys; }

const Setting_Key* Key_Of_Config(std::string_view config_name) {
  const auto* const found = std::find_if(std::begin(keys), std::end(keys), [&](const Setting_Key& key) {
    return key.Config_Name != nullptr && key.Config_Name == config_name;
  });
  return found == std::end(keys) ? nullptr : found;
}

const Setting_Key& Key_Of(const Member& variable) {
  return *std::find_if(std::begin(keys), std::end(keys),
                       [&](const Setting_Key& key) { return key.Variable == variable; });
}

}  // namespace settings
