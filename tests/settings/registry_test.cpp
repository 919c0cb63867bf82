// What the registry module does with its keys, which only the registry in memory can tell, and where it is refused.
#include "settings/registry.h"

#include <gtest/gtest.h>

#include "memory/memory_files.h"
#include "memory/memory_profiles.h"
#include "memory/memory_registry.h"

using platform::Hive;
using settings::Registry_Value;

namespace {

constexpr const char* key = "Software\\Case";

class Registry_Test : public ::testing::Test {
 protected:
  int Get(const char* place, const char* name, const char* kind, const Registry_Value& default_value) {
    return Registry.Registry_Get(place, key, name, kind, default_value, Result);
  }
  int Set(const char* name, const char* kind, const Registry_Value& data) {
    return Registry.Registry_Set("HKCU", key, name, kind, data);
  }
  int Delete(const char* name) { return Registry.Registry_Delete("HKCU", key, name); }

  memory::Virtual_Time Time;
  memory::Memory_Files Files{Time};
  memory::Memory_Registry Keys;
  memory::Memory_Profiles Profiles{Files};
  settings::Registry Registry{Keys, Profiles, Files};
  Registry_Value Result;
};

Registry_Value Text(std::string text) { return text; }

}  // namespace

TEST_F(Registry_Test, Hives_have_their_handle_values) {
  EXPECT_EQ(Registry.Registry_Hive("HKCU"), 0x80000001U);
  EXPECT_EQ(Registry.Registry_Hive("HKLM"), 0x80000002U);
  EXPECT_EQ(Registry.Registry_Hive("HKU"), 0x80000003U);
  EXPECT_EQ(Registry.Registry_Hive("HKDD"), 0x80000006U);
  EXPECT_EQ(Registry.Registry_Hive("HKCC"), 0x80000005U);
  EXPECT_EQ(Registry.Registry_Hive("HKCR"), 0x80000000U);
  EXPECT_EQ(Registry.Registry_Hive("hkcr"), 0x80000000U);
}

TEST_F(Registry_Test, A_file_that_is_there_is_the_place_1_and_anything_else_0) {
  Files.Put("C:\\Meridex\\some.ini", "");
  EXPECT_EQ(Registry.Registry_Hive("c:\\meridex\\SOME.ini"), 1U);
  EXPECT_EQ(Registry.Registry_Hive("C:\\Meridex\\none.ini"), 0U);
  EXPECT_EQ(Registry.Registry_Hive("C:\\Meridex"), 0U) << "a folder is no profile file";
  EXPECT_EQ(Registry.Registry_Hive("HKCU "), 0U);
}

TEST_F(Registry_Test, Each_hive_name_leads_to_its_own_hive) {
  Keys.Put(Hive::Local_Machine, key, "Value", "machine");
  EXPECT_EQ(Get("HKLM", "Value", "S", Text("")), 0);
  EXPECT_EQ(Result, Text("machine"));
  EXPECT_EQ(Get("HKCU", "Value", "S", Text("")), 2);
}

TEST_F(Registry_Test, Successful_reads_and_writes_close_the_key) {
  Set("Text", "S", Text("x"));
  Set("Number", "D", 5);
  Set("Truth", "B", true);
  Set("Nothing", "X", 5);
  for (const char* kind : {"S", "X"}) Get("HKCU", "Text", kind, Text(""));
  Get("HKCU", "Number", "D", 0);
  Get("HKCU", "Truth", "B", false);
  EXPECT_EQ(Keys.Open_Keys(), 0U);
}

TEST_F(Registry_Test, A_refused_read_leaves_the_key_open) {
  Set("Text", "S", Text("long enough"));
  EXPECT_EQ(Get("HKCU", "None", "S", Text("")), 2);
  EXPECT_EQ(Keys.Open_Keys(), 1U);
  EXPECT_EQ(Get("HKCU", "None", "D", 0), 2);
  EXPECT_EQ(Keys.Open_Keys(), 2U);
  EXPECT_EQ(Get("HKCU", "Text", "B", false), 234);
  EXPECT_EQ(Keys.Open_Keys(), 3U);
}

TEST_F(Registry_Test, A_value_of_no_bytes_leaves_the_key_open) {
  Set("Empty", "S", Text(""));
  EXPECT_EQ(Get("HKCU", "Empty", "S", Text("default")), 0);
  EXPECT_EQ(Keys.Open_Keys(), 1U);
}

TEST_F(Registry_Test, A_key_that_cannot_be_opened_leaves_none_open) {
  EXPECT_EQ(Get("HKLM", "Value", "S", Text("")), 2);
  EXPECT_EQ(Keys.Open_Keys(), 0U);
}

TEST_F(Registry_Test, Data_that_does_not_convert_makes_the_key_and_leaves_it_open) {
  EXPECT_EQ(Set("Value", "D", 70000), 0);
  EXPECT_EQ(Keys.Open_Keys(), 1U);
  EXPECT_EQ(Get("HKCU", "Value", "D", 3), 2) << "the key is there, the value isn't";
  EXPECT_EQ(Set("Value", "B", Text("perhaps")), 0);
  EXPECT_EQ(Keys.Open_Keys(), 3U);
}

TEST_F(Registry_Test, Deleting_leaves_the_key_open_on_every_path) {
  Set("Value", "S", Text("x"));
  EXPECT_EQ(Delete("Value"), 0);
  EXPECT_EQ(Keys.Open_Keys(), 1U);
  EXPECT_EQ(Delete("Value"), 0) << "a missing value";
  EXPECT_EQ(Keys.Open_Keys(), 2U);
}

TEST_F(Registry_Test, A_denied_hive_is_read_but_neither_written_nor_deleted_from) {
  Set("Value", "S", Text("kept"));
  Keys.Deny(Hive::Current_User, true);
  EXPECT_EQ(Set("Value", "S", Text("new")), 5);
  EXPECT_EQ(Delete("Value"), 5);
  EXPECT_EQ(Get("HKCU", "Value", "S", Text("")), 0);
  EXPECT_EQ(Result, Text("kept"));
  EXPECT_EQ(Keys.Open_Keys(), 0U);
  Keys.Deny(Hive::Current_User, false);
  EXPECT_EQ(Delete("Value"), 0);
}

TEST_F(Registry_Test, A_profile_that_cannot_be_written_counts_as_written) {
  const std::string path = "C:\\Meridex\\full.ini";
  Files.Fill_Up(path);
  EXPECT_EQ(Registry.Registry_Set(path, "Section", "Entry", "S", Text("x")), 0);
  EXPECT_EQ(Registry.Registry_Delete(path, "Section", "Entry"), 0);
}

TEST_F(Registry_Test, A_place_that_is_no_file_touches_no_file) {
  EXPECT_EQ(Registry.Registry_Set("C:\\Meridex\\new.ini", "Section", "Entry", "S", Text("x")), 99);
  EXPECT_FALSE(Files.File_Exists("C:\\Meridex\\new.ini"));
}
