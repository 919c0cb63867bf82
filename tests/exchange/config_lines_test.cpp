// The lines of the configuration file, out and in.
#include "tests/exchange/config_lines.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "tests/basic/error_of.h"

using exchange::Apply_Config_Line;
using exchange::Shown_Values;
using settings::Settings;
using Texts = std::vector<std::string>;

namespace {

class Config_Lines_Test : public ::testing::Test {
 protected:
  Config_Lines_Test() { Stored.Load_Settings(); }

  std::string Kept(const std::string& section, const std::string& key) {
    return Store.Get(settings::application, section, key, "absent");
  }

  int Error_Of_Applying(const std::string& line) {
    return Error_Of([&] { Apply_Config_Line(line, Stored); });
  }

  memory::Memory_Store Store;
  settings::Stored_Settings Stored{Store};
};

/// The line that begins with the key.
std::string Line(const Shown_Values& shown, const std::string& key) {
  for (const std::string& line : Config_Lines(shown))
    if (line.starts_with(key + "=")) return line;
  return "";
}

}  // namespace

TEST_F(Config_Lines_Test, Stand_in_their_order_and_one_of_them_twice) {
  Shown_Values shown;
  shown.Values = Stored.Values;
  shown.Idle_Time = "45";
  shown.Style = 2;
  shown.Position = 7;
  shown.Title_Row_Source = 1;
  shown.Tips = 0;
  EXPECT_EQ(Config_Lines(shown), (Texts{"Style=2",
                                        "TaskPos=7",
                                        "Col_Today=16761024",
                                        "Col_Normal=16777215",
                                        "Col_Fore=16777215",
                                        "Col_Num=-2147483630",
                                        "Col_Text=-2147483630",
                                        "Col_Back=8390687",
                                        "Col_Inactive=-2147483645",
                                        "Menu_Col_Sorce=1",
                                        "Show_Alerts=1",
                                        "Use_Themes=0",
                                        "Use_Theme_Pos=1",
                                        "Use_Theme_Style=1",
                                        "Allow_Dragging=1",
                                        "Bar_Time=0",
                                        "Bar_Time_Format=H:mm",
                                        "Bar_Date_Format=d Month - yyyy",
                                        "Manual_PosX=0",
                                        "Manual_PosY=0",
                                        "Use_Other_Display_Mode=0",
                                        "Other_Display_Mode=0",
                                        "Auto_Compact=0",
                                        "Pack_Name=Default",
                                        "Show_Splash=1",
                                        "Trans_Icons=0",
                                        "Timeout_Value=45",
                                        "Timeout_Format=0",
                                        "Carriage_Return=0",
                                        "Start_Day=0",
                                        "Auto_Compact=0",
                                        "Tooltips=0"}));
}

TEST_F(Config_Lines_Test, A_group_without_an_option_has_the_number_of_the_group_before) {
  Shown_Values shown;
  EXPECT_EQ(Line(shown, "Style"), "Style=0");
  EXPECT_EQ(Line(shown, "Tooltips"), "Tooltips=0");
  shown.Style = 2;
  EXPECT_EQ(Line(shown, "TaskPos"), "TaskPos=2");
  EXPECT_EQ(Line(shown, "Menu_Col_Sorce"), "Menu_Col_Sorce=2");
  EXPECT_EQ(Line(shown, "Tooltips"), "Tooltips=2");
  shown.Position = 9;
  EXPECT_EQ(Line(shown, "Tooltips"), "Tooltips=9");
  shown.Title_Row_Source = 1;
  EXPECT_EQ(Line(shown, "Tooltips"), "Tooltips=1");
}

TEST_F(Config_Lines_Test, The_idle_time_goes_out_as_its_list_shows_it) {
  Shown_Values shown;
  EXPECT_EQ(Line(shown, "Timeout_Value"), "Timeout_Value=") << "nothing is selected";
  shown.Idle_Time = "07";
  EXPECT_EQ(Line(shown, "Timeout_Value"), "Timeout_Value=07");
}

TEST_F(Config_Lines_Test, A_truth_value_may_be_any_number) {
  EXPECT_EQ(Error_Of_Applying("Bar_Time=99999999999"), 0);
  EXPECT_EQ(Kept("Settings", "Bar Time"), "99999999999");
  EXPECT_TRUE(Stored.Values.Bar_Time);
  EXPECT_EQ(Error_Of_Applying("Bar_Time=0.0"), 0);
  EXPECT_FALSE(Stored.Values.Bar_Time);
  EXPECT_EQ(Error_Of_Applying("Bar_Time=-0.5"), 0);
  EXPECT_TRUE(Stored.Values.Bar_Time);
}

TEST_F(Config_Lines_Test, Each_key_goes_into_its_setting_and_its_place_in_the_store) {
  for (const settings::Setting_Key& key : settings::All_Keys()) {
    if (key.Config_Name == nullptr) continue;
    Apply_Config_Line(std::string(key.Config_Name) + "=1", Stored);
    EXPECT_EQ(Kept(key.Section, key.Name), "1") << key.Name;
  }
  Stored.Values.Settings_Tab = 1;
  Shown_Values shown;
  shown.Values = Stored.Values;
  shown.Idle_Time = "1";
  shown.Style = shown.Position = shown.Title_Row_Source = shown.Tips = 1;
  for (const std::string& line : Config_Lines(shown)) EXPECT_TRUE(line.ends_with("=1")) << line;
  EXPECT_EQ(Stored.Values.Style, 1);
  EXPECT_EQ(Stored.Values.Alignment, 1);
  EXPECT_EQ(Stored.Values.Menu_Colour_Source, 1);
  EXPECT_EQ(Stored.Values.Tooltips, 1);
}

TEST_F(Config_Lines_Test, Thirty_one_settings_are_carried) {
  int carried = 0;
  for (const settings::Setting_Key& key : settings::All_Keys()) carried += key.Config_Name != nullptr ? 1 : 0;
  EXPECT_EQ(carried, 31);
  EXPECT_EQ(settings::Key_Of(&Settings::Settings_Tab).Config_Name, nullptr);
}

TEST_F(Config_Lines_Test, The_text_is_stored_as_it_stands_before_it_is_converted) {
  EXPECT_EQ(Error_Of_Applying("Style= +2 "), 0);
  EXPECT_EQ(Kept("Settings", "Style"), " +2 ");
  EXPECT_EQ(Stored.Values.Style, 2);
  EXPECT_EQ(Error_Of_Applying("Style=abc"), 13);
  EXPECT_EQ(Kept("Settings", "Style"), "abc");
  EXPECT_EQ(Stored.Values.Style, 2);
  EXPECT_EQ(Error_Of_Applying("Style=32768"), 6);
  EXPECT_EQ(Error_Of_Applying("Col_Back=2147483648"), 6);
  EXPECT_EQ(Error_Of_Applying("Col_Back=-2147483648"), 0);
  EXPECT_EQ(Error_Of_Applying("Style="), 13);
  EXPECT_EQ(Error_Of_Applying("Pack_Name="), 0);
  EXPECT_EQ(Stored.Values.Pack_Name, "");
}

TEST_F(Config_Lines_Test, Unknown_keys_are_passed_over_and_a_line_without_an_equals_sign_is_not) {
  for (const char* const line :
       {"style=0", "STYLE=0", " Style=0", "Style =0", "Alignment=0", "Settings_Tab=0", "=0", "x==="})
    EXPECT_EQ(Error_Of_Applying(line), 0) << line;
  EXPECT_EQ(Stored.Values.Style, 1);
  EXPECT_TRUE(Store.Values(settings::application).empty());
  EXPECT_EQ(Error_Of_Applying("Style"), 5);
  EXPECT_EQ(Error_Of_Applying(""), 5);
}

TEST_F(Config_Lines_Test, A_value_may_hold_equals_signs) {
  Apply_Config_Line("Pack_Name=Summer=Winter", Stored);
  EXPECT_EQ(Stored.Values.Pack_Name, "Summer=Winter");
}
