#include "packs/set_wallpaper_mod.h"

#include <gtest/gtest.h>

#include "tests/packs/pack_world.h"

using platform::Hive;

namespace {

class Set_Wallpaper_Mod_Test : public ::testing::Test, protected Pack_World {
 protected:
  Wallpapers After(const std::string& path, basic::Int16 mode) {
    Set_Wallpaper_Mod.Set_Wallpaper(path, mode);
    return Wallpaper.Take_Settings();
  }
  std::optional<std::string> Value(const char* name) {
    return Registry.Find(Hive::Current_User, "Control Panel\\Desktop", name);
  }
};

}  // namespace

TEST_F(Set_Wallpaper_Mod_Test, Each_display_mode_writes_its_two_values_before_the_picture_is_set) {
  EXPECT_EQ(After("a.bmp", 0), (Wallpapers{{"a.bmp", "0", "0"}}));
  EXPECT_EQ(After("a.bmp", 1), (Wallpapers{{"a.bmp", "1", "0"}}));
  EXPECT_EQ(After("a.bmp", 2), (Wallpapers{{"a.bmp", "0", "2"}}));
}

TEST_F(Set_Wallpaper_Mod_Test, Any_other_display_mode_stretches) {
  for (const int mode : {3, -1, 32767, -32768}) EXPECT_EQ(After("a.bmp", mode), (Wallpapers{{"a.bmp", "0", "2"}}));
}

TEST_F(Set_Wallpaper_Mod_Test, The_words_are_taken_letter_for_letter) {
  for (const char* const word : {"", "Tiled", "center", "STRETCH"}) {
    Set_Wallpaper_Mod.Apply_Wallpaper("a.bmp", word);
    EXPECT_EQ(Wallpaper.Take_Settings(), (Wallpapers{{"a.bmp", "0", "2"}})) << word;
  }
}

TEST_F(Set_Wallpaper_Mod_Test, An_empty_path_takes_the_picture_off) {
  After("a.bmp", 2);
  EXPECT_EQ(After("", 0), (Wallpapers{{"", "0", "0"}}));
  EXPECT_EQ(Value("Wallpaper"), "");
  EXPECT_EQ(Value("TileWallpaper"), "0");
  EXPECT_EQ(Value("WallpaperStyle"), "0");
}

TEST_F(Set_Wallpaper_Mod_Test, The_system_keeps_the_path) {
  After(R"(C:\Meridex\Test\3.bmp)", 1);
  EXPECT_EQ(Value("Wallpaper"), R"(C:\Meridex\Test\3.bmp)");
}

TEST_F(Set_Wallpaper_Mod_Test, No_key_stays_open) {
  After("a.bmp", 1);
  EXPECT_EQ(Registry.Open_Keys(), 0U);
}

TEST_F(Set_Wallpaper_Mod_Test, Values_that_cannot_be_written_do_not_keep_the_picture_from_being_set) {
  After("a.bmp", 1);
  Registry.Deny(Hive::Current_User, true);
  EXPECT_EQ(After("b.bmp", 2), (Wallpapers{{"b.bmp", "1", "0"}})) << "the old values rule";
}

TEST_F(Set_Wallpaper_Mod_Test, A_value_is_written_into_a_key_that_is_there_alone) {
  Registry.Put(Hive::Users, "A\\B", "Other", "x");
  Set_Wallpaper_Mod.Write_Desktop_Value(Hive::Users, "a\\b", "Name", "text");
  EXPECT_EQ(Registry.Find(Hive::Users, "A\\B", "Name"), "text");
  Set_Wallpaper_Mod.Write_Desktop_Value(Hive::Users, "A\\C", "Name", "text");
  EXPECT_EQ(Registry.Find(Hive::Users, "A\\C", "Name"), std::nullopt);
  EXPECT_EQ(Registry.Open_Keys(), 0U);
}
