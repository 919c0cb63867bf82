#include "packs/wallpaper_stuff.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/packs/pack_world.h"

using settings::Settings;

namespace {

class Wallpaper_Stuff_Test : public ::testing::Test, protected Pack_World {
 protected:
  Wallpaper_Stuff_Test() {
    Today(2004, 3, 5);
    Pack_World::Settings.Set(&Settings::Use_Themes, 1);
    Put("settings.ini", "3=2-5-1\r\n4=1-6-0\r\n");
    Put("3.jpg", Small_Jpeg());
    Put("4.jpg", Small_Jpeg());
  }

  void Today(int year, int month, int day) { Time.Set_Now({basic::Date_Serial(year, month, day), 0}); }

  template <class Value, class New_Value>
  void Set(Value Settings::*variable, const New_Value& value) {
    Pack_World::Settings.Set(variable, value);
  }

  Wallpapers Get() {
    Wallpaper_Stuff.Get_Wallpaper_Stuff("Test");
    return Wallpaper.Take_Settings();
  }

  int Error_Of_Value(const std::string& value) {
    Put("settings.ini", "3=" + value + "\r\n");
    return Error_Of([&] { Get(); });
  }
};

const std::string march = R"(C:\Meridex\Test\3.bmp)";

}  // namespace

TEST_F(Wallpaper_Stuff_Test, Applies_today_s_month) {
  EXPECT_EQ(Get(), (Wallpapers{{march, "1", "0"}}));
  EXPECT_EQ(State.Pack_Box_Style, 2);
  EXPECT_EQ(State.Pack_Pos, 5);
  EXPECT_TRUE(Holds("3.bmp"));
}

TEST_F(Wallpaper_Stuff_Test, A_new_month_brings_its_own_picture_and_takes_the_old_bitmap_away) {
  Get();
  Today(2004, 4, 1);
  EXPECT_EQ(Get(), (Wallpapers{{"C:\\Meridex\\Test\\4.bmp", "0", "0"}}));
  EXPECT_EQ(State.Pack_Box_Style, 1);
  EXPECT_EQ(State.Pack_Pos, 6);
  EXPECT_FALSE(Holds("3.bmp"));
}

TEST_F(Wallpaper_Stuff_Test, A_new_day_of_the_month_converts_nothing_and_sets_the_picture_again) {
  Get();
  Files.Remove(Folder + "3.jpg");
  const basic::Moment made = Files.Last_Change(Folder + "3.bmp");
  Today(2004, 3, 6);
  EXPECT_EQ(Get(), (Wallpapers{{march, "1", "0"}}));
  EXPECT_EQ(Files.Last_Change(Folder + "3.bmp"), made);
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Wallpaper_Stuff_Test, With_packs_off_nothing_is_read_nor_told) {
  Set(&Settings::Use_Themes, 0);
  Wallpaper_Stuff.Get_Wallpaper_Stuff("Nowhere");
  EXPECT_EQ(Get(), Wallpapers{});
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(State.Pack_Box_Style, 0);
  EXPECT_FALSE(Holds("3.bmp"));
}

TEST_F(Wallpaper_Stuff_Test, Any_value_but_0_has_packs_on) {
  for (const int on : {2, -1}) {
    Set(&Settings::Use_Themes, on);
    EXPECT_EQ(Get().size(), 1U);
  }
}

TEST_F(Wallpaper_Stuff_Test, Style_and_position_keep_their_values_where_the_pack_s_are_not_wanted) {
  State.Pack_Box_Style = 8;
  State.Pack_Pos = 9;
  Set(&Settings::Use_Theme_Style, 0);
  Get();
  EXPECT_EQ(State.Pack_Box_Style, 8);
  EXPECT_EQ(State.Pack_Pos, 5);
  State.Pack_Pos = 9;
  Set(&Settings::Use_Theme_Style, 1);
  Set(&Settings::Use_Theme_Pos, 0);
  Get();
  EXPECT_EQ(State.Pack_Box_Style, 2);
  EXPECT_EQ(State.Pack_Pos, 9);
}

TEST_F(Wallpaper_Stuff_Test, Only_1_wants_the_pack_s_style_and_position) {
  Set(&Settings::Use_Theme_Style, 2);
  Set(&Settings::Use_Theme_Pos, -1);
  Get();
  EXPECT_EQ(State.Pack_Box_Style, 0);
  EXPECT_EQ(State.Pack_Pos, 0);
}

TEST_F(Wallpaper_Stuff_Test, The_user_s_display_mode_replaces_the_pack_s) {
  Set(&Settings::Use_Other_Display_Mode, true);
  Set(&Settings::Other_Display_Mode, 2);
  EXPECT_EQ(Get(), (Wallpapers{{march, "0", "2"}}));
  Set(&Settings::Other_Display_Mode, 7);
  EXPECT_EQ(Get(), (Wallpapers{{march, "0", "2"}}));
  Set(&Settings::Other_Display_Mode, 0);
  EXPECT_EQ(Get(), (Wallpapers{{march, "0", "0"}}));
}

TEST_F(Wallpaper_Stuff_Test, A_missing_pack_stops_it_with_packs_off_and_no_picture) {
  State.Pack_Box_Style = 8;
  Wallpaper_Stuff.Get_Wallpaper_Stuff("Nowhere");
  EXPECT_EQ(Boxes(), "Meridex|Missing Pack Nowhere. Packs will now be disabled.|critical OK\n");
  EXPECT_EQ(Pack_World::Settings.Values.Use_Themes, 0);
  EXPECT_EQ(Wallpaper.Take_Settings(), (Wallpapers{{"", "0", "0"}}));
  EXPECT_EQ(State.Pack_Box_Style, 8);
  EXPECT_EQ(Get(), Wallpapers{}) << "packs are off now";
}

TEST_F(Wallpaper_Stuff_Test, A_settings_file_that_fails_stops_it_and_leaves_the_desktop) {
  Put("settings.ini", "Name=x\r\n");
  EXPECT_EQ(Get(), Wallpapers{});
  EXPECT_EQ(State.Pack_Pos, 0);
  EXPECT_EQ(Pack_World::Settings.Values.Use_Themes, 1);
  EXPECT_FALSE(Holds("3.bmp"));
}

TEST_F(Wallpaper_Stuff_Test, A_picture_that_fails_stops_it_behind_style_and_position) {
  Put("3.jpg", "no picture");
  EXPECT_EQ(Get(), Wallpapers{});
  EXPECT_EQ(State.Pack_Box_Style, 2);
  EXPECT_EQ(State.Pack_Pos, 5);
  EXPECT_EQ(Boxes(), "Meridex|Error loading in Picture file...\r\n\r\nC:\\Meridex\\Test\\3.jpg|critical OK\n");
}

TEST_F(Wallpaper_Stuff_Test, A_month_without_a_line_ends_the_program) {
  Put("settings.ini", "4=1-1-1\r\n");
  EXPECT_EQ(Error_Of([&] { Get(); }), 5);
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Wallpaper_Stuff_Test, A_bad_value_ends_the_program_where_its_field_is_needed) {
  EXPECT_EQ(Error_Of_Value("1"), 5);
  EXPECT_EQ(Error_Of_Value("x-1-1"), 13);
  EXPECT_EQ(Error_Of_Value("40000-1-1"), 6);
  EXPECT_FALSE(Holds("3.bmp")) << "before the picture";
  EXPECT_EQ(Error_Of_Value("1-7"), 5);
  EXPECT_EQ(State.Pack_Box_Style, 1) << "behind the style";
  EXPECT_FALSE(Holds("3.bmp"));
  EXPECT_EQ(Error_Of_Value("1-7-1-0"), 13);
  EXPECT_EQ(State.Pack_Pos, 7) << "behind the position";
  EXPECT_TRUE(Holds("3.bmp")) << "behind the picture";
  EXPECT_TRUE(Wallpaper.Take_Settings().empty());
}

TEST_F(Wallpaper_Stuff_Test, A_field_that_is_not_needed_may_be_anything) {
  Set(&Settings::Use_Theme_Style, 0);
  Set(&Settings::Use_Theme_Pos, 0);
  EXPECT_EQ(Error_Of_Value("word-word-1"), 0);
  Set(&Settings::Use_Other_Display_Mode, true);
  EXPECT_EQ(Error_Of_Value("no value at all"), 0);
  EXPECT_EQ(Wallpaper.Take_Settings().size(), 0U) << "both were taken by the calls";
}

TEST_F(Wallpaper_Stuff_Test, A_value_of_the_word_ERROR_counts_as_a_failure) {
  EXPECT_EQ(Error_Of_Value("ERROR"), 0);
  EXPECT_EQ(Boxes(), "");
  EXPECT_FALSE(Holds("3.bmp"));
}
