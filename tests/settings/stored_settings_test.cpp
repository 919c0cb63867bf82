#include "settings/stored_settings.h"

#include <gtest/gtest.h>

#include "memory/memory_store.h"
#include "tests/basic/error_of.h"

using settings::Setting_Key;
using settings::Settings;

namespace {

class Stored_Settings_Test : public ::testing::Test {
 protected:
  void Put(const Setting_Key& key, const std::string& text) { Store.Save("Meridex", key.Section, key.Name, text); }

  std::string Stored(const settings::Member& variable) {
    const Setting_Key& key = settings::Key_Of(variable);
    return Store.Get("Meridex", key.Section, key.Name, "absent");
  }

  /// The error that loading ends with when a key holds that text and all others are absent.
  static int Error_Of_Text(const Setting_Key& key, const std::string& text) {
    memory::Memory_Store store;
    store.Save("Meridex", key.Section, key.Name, text);
    settings::Stored_Settings stored(store);
    return Error_Of([&] { stored.Load_Settings(); });
  }

  memory::Memory_Store Store;
  settings::Stored_Settings Stored_Settings{Store};
  Settings& Values = Stored_Settings.Values;
};

/// A text for each type that none of its keys has as its default, and how it is written back.
struct Sample {
  std::string operator()(basic::Int16 Settings::* /*variable*/) const { return "-321"; }
  std::string operator()(std::int32_t Settings::* /*variable*/) const { return "-7654321"; }
  std::string operator()(bool Settings::* /*variable*/) const { return "True"; }
  std::string operator()(std::string Settings::* /*variable*/) const { return " any text, \"so\" = "; }
};

template <class Type>
bool Is(const Setting_Key& key) {
  return std::holds_alternative<Type Settings::*>(key.Variable);
}

}  // namespace

TEST_F(Stored_Settings_Test, An_empty_store_gives_every_default_and_stays_empty) {
  Stored_Settings.Load_Settings();
  EXPECT_EQ(Values.Style, 1);
  EXPECT_EQ(Values.Alignment, 0);
  EXPECT_EQ(Values.Pack_Name, "Default");
  EXPECT_EQ(Values.Use_Themes, 0);
  EXPECT_FALSE(Values.Bar_Time);
  EXPECT_EQ(Values.Bar_Date_Format, "d Month - yyyy");
  EXPECT_EQ(Values.Timeout_Value, 45);
  EXPECT_EQ(Values.Today, 16761024);
  EXPECT_EQ(Values.Inactive, -2147483645);
  EXPECT_EQ(Values.Menu_Colour_Source, 1);
  EXPECT_TRUE(Store.Values("Meridex").empty());
}

TEST_F(Stored_Settings_Test, Each_default_can_be_saved_and_is_its_own_text) {
  Stored_Settings.Load_Settings();
  for (const Setting_Key& key : settings::All_Keys()) {
    Stored_Settings.Save(key.Variable);
    EXPECT_EQ(Stored(key.Variable), key.Default) << key.Name;
  }
}

TEST_F(Stored_Settings_Test, Each_key_fills_its_own_variable_and_is_saved_from_it) {
  for (const Setting_Key& key : settings::All_Keys()) {
    memory::Memory_Store from, to;
    const std::string text = std::visit(Sample{}, key.Variable);
    from.Save("Meridex", key.Section, key.Name, text);
    settings::Stored_Settings loaded(from);
    loaded.Load_Settings();
    settings::Stored_Settings saved(to);
    saved.Values = loaded.Values;
    for (const Setting_Key& other : settings::All_Keys()) saved.Save(other.Variable);
    for (const Setting_Key& other : settings::All_Keys())
      EXPECT_EQ(to.Get("Meridex", other.Section, other.Name, ""), &other == &key ? text : other.Default)
          << key.Name << " and " << other.Name;
  }
}

TEST_F(Stored_Settings_Test, A_text_that_is_no_number_ends_the_load_with_error_13) {
  for (const Setting_Key& key : settings::All_Keys()) {
    const bool any_text = Is<std::string>(key);
    for (const char* text : {"", "abc", "1 2", "--1", "0x10"})
      EXPECT_EQ(Error_Of_Text(key, text), any_text ? 0 : 13) << key.Name << " = " << text;
    EXPECT_EQ(Error_Of_Text(key, "1.5"), any_text || Is<bool>(key) ? 0 : 13) << key.Name;
  }
}

TEST_F(Stored_Settings_Test, A_number_beyond_its_type_ends_the_load_with_error_6) {
  for (const Setting_Key& key : settings::All_Keys()) {
    const bool of_16_bits = Is<basic::Int16>(key);
    const bool of_32_bits = Is<std::int32_t>(key);
    for (const char* text : {"32768", "-32769", "40000"})
      EXPECT_EQ(Error_Of_Text(key, text), of_16_bits ? 6 : 0) << key.Name << " = " << text;
    for (const char* text : {"2147483648", "-2147483649", "99999999999999999999"})
      EXPECT_EQ(Error_Of_Text(key, text), of_16_bits || of_32_bits ? 6 : 0) << key.Name << " = " << text;
  }
}

TEST_F(Stored_Settings_Test, The_ends_of_each_type_are_taken) {
  for (const Setting_Key& key : settings::All_Keys()) {
    EXPECT_EQ(Error_Of_Text(key, "32767"), 0) << key.Name;
    EXPECT_EQ(Error_Of_Text(key, "-32768"), 0) << key.Name;
    EXPECT_EQ(Error_Of_Text(key, "-2147483648"), Is<basic::Int16>(key) ? 6 : 0) << key.Name;
  }
}

TEST_F(Stored_Settings_Test, Only_the_two_truth_values_take_words) {
  for (const Setting_Key& key : settings::All_Keys())
    EXPECT_EQ(Error_Of_Text(key, "True"), Is<bool>(key) || Is<std::string>(key) ? 0 : 13) << key.Name;
}

TEST_F(Stored_Settings_Test, A_number_reads_as_a_truth_value) {
  Put(settings::Key_Of(&Settings::Bar_Time), "1");
  Put(settings::Key_Of(&Settings::Use_Other_Display_Mode), "-1");
  Stored_Settings.Load_Settings();
  EXPECT_TRUE(Values.Bar_Time);
  EXPECT_TRUE(Values.Use_Other_Display_Mode);
}

TEST_F(Stored_Settings_Test, A_value_without_meaning_is_taken_as_it_is) {
  Put(settings::Key_Of(&Settings::Style), "5");
  Stored_Settings.Load_Settings();
  EXPECT_EQ(Values.Style, 5);
}

TEST_F(Stored_Settings_Test, A_bad_text_is_left_in_the_store) {
  Put(settings::Key_Of(&Settings::Style), "abc");
  EXPECT_EQ(Error_Of([&] { Stored_Settings.Load_Settings(); }), 13);
  EXPECT_EQ(Stored(&Settings::Style), "abc");
}

TEST_F(Stored_Settings_Test, Setting_saves_that_key_at_once_and_no_other) {
  Stored_Settings.Load_Settings();
  Stored_Settings.Set(&Settings::Use_Themes, 1);
  EXPECT_EQ(Values.Use_Themes, 1);
  EXPECT_EQ(Stored(&Settings::Use_Themes), "1");
  EXPECT_EQ(Store.Values("Meridex").size(), 1U);
}

TEST_F(Stored_Settings_Test, Truth_values_are_saved_as_words) {
  Stored_Settings.Set(&Settings::Bar_Time, true);
  EXPECT_EQ(Stored(&Settings::Bar_Time), "True");
  Stored_Settings.Set(&Settings::Bar_Time, false);
  EXPECT_EQ(Stored(&Settings::Bar_Time), "False");
}

TEST_F(Stored_Settings_Test, A_position_beyond_16_bits_cannot_be_kept) {
  EXPECT_EQ(Error_Of([&] { Stored_Settings.Set(&Settings::Manual_PosX, 32768); }), 6);
  EXPECT_EQ(Stored(&Settings::Manual_PosX), "absent");
}
