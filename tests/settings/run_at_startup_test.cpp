#include "settings/run_at_startup.h"

#include <gtest/gtest.h>

#include "memory/memory_files.h"
#include "memory/memory_profiles.h"
#include "memory/memory_registry.h"

using platform::Hive;

namespace {

class Run_At_Startup_Test : public ::testing::Test {
 protected:
  std::optional<std::string> Of(Hive hive) { return Keys.Find(hive, settings::run_key, "Meridex"); }
  void Put(Hive hive, const std::string& text) { Keys.Put(hive, settings::run_key, "Meridex", text); }

  memory::Virtual_Time Time;
  memory::Memory_Files Files{Time};
  memory::Memory_Registry Keys;
  memory::Memory_Profiles Profiles{Files};
  settings::Registry Registry{Keys, Profiles, Files};
  settings::Run_At_Startup Run{Registry, Files};
};

}  // namespace

TEST_F(Run_At_Startup_Test, The_entry_s_place_and_name) {
  EXPECT_STREQ(settings::run_key, "Software\\Microsoft\\Windows\\CurrentVersion\\Run");
  EXPECT_STREQ(settings::run_value, "Meridex");
}

TEST_F(Run_At_Startup_Test, An_entry_of_the_machine_moves_to_the_user_with_the_present_path) {
  Put(Hive::Local_Machine, "D:\\Old\\Place.exe");
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Local_Machine), std::nullopt);
  EXPECT_EQ(Of(Hive::Current_User), "C:\\Meridex\\Meridex.exe");
}

TEST_F(Run_At_Startup_Test, A_moved_entry_takes_the_place_of_the_user_s_own) {
  Put(Hive::Local_Machine, "old");
  Put(Hive::Current_User, "older");
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Current_User), "C:\\Meridex\\Meridex.exe");
}

TEST_F(Run_At_Startup_Test, Without_entries_nothing_changes) {
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Local_Machine), std::nullopt);
  EXPECT_EQ(Of(Hive::Current_User), std::nullopt);
}

TEST_F(Run_At_Startup_Test, The_user_s_own_entry_is_left_as_it_is) {
  Put(Hive::Current_User, "D:\\Elsewhere\\Meridex.exe");
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Current_User), "D:\\Elsewhere\\Meridex.exe");
}

TEST_F(Run_At_Startup_Test, Without_the_right_to_delete_nothing_is_written) {
  Put(Hive::Local_Machine, "old");
  Keys.Deny(Hive::Local_Machine, true);
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Local_Machine), "old");
  EXPECT_EQ(Of(Hive::Current_User), std::nullopt);
}

TEST_F(Run_At_Startup_Test, An_empty_entry_is_deleted_and_not_made_again) {
  Put(Hive::Local_Machine, "");
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Local_Machine), std::nullopt);
  EXPECT_EQ(Of(Hive::Current_User), std::nullopt);
}

TEST_F(Run_At_Startup_Test, An_entry_of_the_text_BLANK_is_an_entry) {
  Put(Hive::Local_Machine, "BLANK");
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Current_User), "C:\\Meridex\\Meridex.exe");
}

TEST_F(Run_At_Startup_Test, A_refused_writing_goes_unnoticed) {
  Put(Hive::Local_Machine, "old");
  Keys.Deny(Hive::Current_User, true);
  Run.Move_Run_Value();
  EXPECT_EQ(Of(Hive::Local_Machine), std::nullopt);
  EXPECT_EQ(Of(Hive::Current_User), std::nullopt);
}
