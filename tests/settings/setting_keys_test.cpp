#include "settings/setting_keys.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using settings::Settings;

namespace {

struct Row {
  const char* section;
  const char* name;
  const char* default_text;
  settings::Member variable;
};

const Row rows[] = {
    {"Settings", "Style", "1", &Settings::Style},
    {"Settings", "Alignment", "0", &Settings::Alignment},
    {"Settings", "Pack Name", "Default", &Settings::Pack_Name},
    {"Settings", "Use Themes", "0", &Settings::Use_Themes},
    {"Settings", "Use Theme Pos", "1", &Settings::Use_Theme_Pos},
    {"Settings", "Use Theme Style", "1", &Settings::Use_Theme_Style},
    {"Settings", "Show Alerts", "1", &Settings::Show_Alerts},
    {"Settings", "Allow Dragging", "1", &Settings::Allow_Dragging},
    {"Settings", "Bar Time", "False", &Settings::Bar_Time},
    {"Settings", "Bar Time Format", "H:mm", &Settings::Bar_Time_Format},
    {"Settings", "Bar Date Format", "d Month - yyyy", &Settings::Bar_Date_Format},
    {"Settings", "Manual_PosX", "0", &Settings::Manual_PosX},
    {"Settings", "Manual_PosY", "0", &Settings::Manual_PosY},
    {"Settings", "Use Other Display Mode", "False", &Settings::Use_Other_Display_Mode},
    {"Settings", "Other Display Mode", "0", &Settings::Other_Display_Mode},
    {"Settings", "Auto Compact", "0", &Settings::Auto_Compact},
    {"Settings", "Tooltips", "1", &Settings::Tooltips},
    {"Settings", "Settings Tab", "4", &Settings::Settings_Tab},
    {"Settings", "Start Day", "0", &Settings::Start_Day},
    {"Settings", "Show Splash", "1", &Settings::Show_Splash},
    {"Settings", "Trans Icons", "0", &Settings::Trans_Icons},
    {"Settings", "Timeout Value", "45", &Settings::Timeout_Value},
    {"Settings", "Timeout Format", "0", &Settings::Timeout_Format},
    {"Settings", "Carriage_Return", "0", &Settings::Carriage_Return},
    {"Colours", "Today", "16761024", &Settings::Today},
    {"Colours", "Normal", "16777215", &Settings::Normal},
    {"Colours", "Fore", "16777215", &Settings::Fore},
    {"Colours", "Num", "-2147483630", &Settings::Num},
    {"Colours", "Text", "-2147483630", &Settings::Text},
    {"Colours", "Back", "8390687", &Settings::Back},
    {"Colours", "Inactive", "-2147483645", &Settings::Inactive},
    {"Colours", "Menu Colour Source", "1", &Settings::Menu_Colour_Source},
};

}  // namespace

TEST(Setting_Keys_Test, There_are_32_of_them) { EXPECT_EQ(settings::All_Keys().size(), 32U); }

TEST(Setting_Keys_Test, Each_has_its_section_name_and_default) {
  for (const Row& row : rows) {
    const settings::Setting_Key& key = settings::Key_Of(row.variable);
    EXPECT_STREQ(key.Section, row.section) << row.name;
    EXPECT_STREQ(key.Name, row.name);
    EXPECT_STREQ(key.Default, row.default_text) << row.name;
  }
}

TEST(Setting_Keys_Test, No_two_have_the_same_name) {
  std::set<std::string> names;
  for (const settings::Setting_Key& key : settings::All_Keys())
    names.insert(std::string(key.Section) + "\n" + key.Name);
  EXPECT_EQ(names.size(), 32U);
}

TEST(Setting_Keys_Test, They_belong_to_the_application_Meridex) { EXPECT_STREQ(settings::application, "Meridex"); }
