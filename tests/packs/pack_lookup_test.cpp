#include "packs/pack_lookup.h"

#include <gtest/gtest.h>

#include "tests/basic/error_of.h"
#include "tests/packs/pack_world.h"

namespace {

class Pack_Lookup_Test : public ::testing::Test, protected Pack_World {
 protected:
  std::string Details(int month, const std::string& pack = "Test") { return Packs.Get_Paper_Details(month, pack); }
  std::string Path(int month, const std::string& pack = "Test") { return Packs.Get_Paper_Path(pack, month); }

  bool File_Number_Is_Taken() {
    return Error_Of([&] {
             Channel.Open_For_Reading(Folder + "free.txt");
             Channel.Close();
           }) == 55;
  }
};

const char* const settings_failure =
    "Meridex|Error loading in Settings file...\r\n\r\nC:\\Meridex\\Test\\settings.ini|critical OK\n";
const char* const picture_failure =
    "Meridex|Error loading in Picture file...\r\n\r\nC:\\Meridex\\Test\\3.jpg|critical OK\n";

}  // namespace

// The month's value.

TEST_F(Pack_Lookup_Test, Gives_the_month_s_value_and_frees_the_file_number) {
  Put("settings.ini", "1=1-0-2\r\n3=0-5-2\r\n");
  EXPECT_EQ(Details(3), "0-5-2");
  EXPECT_EQ(Details(1), "1-0-2");
  EXPECT_EQ(Boxes(), "");
  EXPECT_FALSE(File_Number_Is_Taken());
}

TEST_F(Pack_Lookup_Test, Gives_nothing_for_a_month_without_a_line) {
  Put("settings.ini", "1=1-0-2\r\n");
  EXPECT_EQ(Details(3), "");
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Pack_Lookup_Test, Finds_names_in_any_case) {
  Put("SETTINGS.INI", "1=1-0-2\r\n");
  EXPECT_EQ(Details(1, "tEST"), "1-0-2");
}

TEST_F(Pack_Lookup_Test, A_missing_pack_switches_packs_off_and_clears_the_wallpaper) {
  Settings.Set(&settings::Settings::Use_Themes, 1);
  EXPECT_EQ(Details(3, "Nowhere"), "ERROR");
  EXPECT_EQ(Boxes(), "Meridex|Missing Pack Nowhere. Packs will now be disabled.|critical OK\n");
  EXPECT_EQ(Settings.Values.Use_Themes, 0);
  EXPECT_EQ(Store.Get("Meridex", "Settings", "Use Themes", "absent"), "0");
  EXPECT_EQ(Wallpaper.Take_Settings(), (Wallpapers{{"", "0", "0"}}));
}

TEST_F(Pack_Lookup_Test, A_missing_pack_is_told_before_anything_else_happens) {
  Settings.Set(&settings::Settings::Use_Themes, 1);
  Message_Box.Prepare(platform::Box_Answer::OK, 2'000'000);
  basic::Int16 in_box = -1;
  Time.Schedule(1'000'000, [&] { in_box = Settings.Values.Use_Themes; });
  Details(3, "Nowhere");
  EXPECT_EQ(in_box, 1);
}

TEST_F(Pack_Lookup_Test, A_file_in_the_pack_s_place_counts_as_its_folder) {
  Files.Put("C:\\Meridex\\Test", "no folder");
  EXPECT_EQ(Details(3), "ERROR");
  EXPECT_EQ(Boxes(), settings_failure);
  EXPECT_TRUE(Wallpaper.Take_Settings().empty());
}

TEST_F(Pack_Lookup_Test, A_missing_settings_file_is_told_and_changes_no_setting) {
  Settings.Set(&settings::Settings::Use_Themes, 1);
  Files.Make_Folder(Folder);
  EXPECT_EQ(Details(3), "ERROR");
  EXPECT_EQ(Boxes(), settings_failure);
  EXPECT_EQ(Settings.Values.Use_Themes, 1);
  EXPECT_TRUE(Wallpaper.Take_Settings().empty());
  EXPECT_FALSE(File_Number_Is_Taken());
}

TEST_F(Pack_Lookup_Test, A_folder_in_the_settings_file_s_place_is_a_missing_file) {
  Files.Block(Folder + "settings.ini");
  EXPECT_EQ(Details(3), "ERROR");
  EXPECT_EQ(Boxes(), settings_failure);
}

TEST_F(Pack_Lookup_Test, A_bad_line_fails_every_month_and_leaves_the_file_number_taken) {
  for (const char* const bad : {"Name=x\r\n", "\r\n", "word\r\n", "=1-1-1\r\n"}) {
    Pack_World world;
    world.Put("settings.ini", std::string("3=0-5-2\r\n") + bad);
    EXPECT_EQ(world.Packs.Get_Paper_Details(3, "Test"), "ERROR") << bad;
    EXPECT_EQ(world.Boxes(), settings_failure) << bad;
    EXPECT_EQ(Error_Of([&] { world.Channel.Open_For_Reading("x"); }), 55) << bad;
  }
}

TEST_F(Pack_Lookup_Test, Once_the_file_number_is_taken_a_good_file_fails_too) {
  Put("settings.ini", "Name=x\r\n");
  Details(3);
  Put("settings.ini", "3=0-5-2\r\n");
  Boxes();
  EXPECT_EQ(Details(3), "ERROR");
  EXPECT_EQ(Boxes(), settings_failure);
}

TEST_F(Pack_Lookup_Test, A_line_for_a_thirteenth_month_is_ignored) {
  Put("settings.ini", "13=1-1-1\r\n3=0-5-2\r\n");
  EXPECT_EQ(Details(3), "0-5-2");
}

TEST_F(Pack_Lookup_Test, The_later_of_two_lines_counts) {
  Put("settings.ini", "3=0-5-2\r\n3=1-6-0\r\n");
  EXPECT_EQ(Details(3), "1-6-0");
}

TEST_F(Pack_Lookup_Test, A_value_is_not_looked_at) {
  Put("settings.ini", "3=anything\r\n4=ERROR\r\n");
  EXPECT_EQ(Details(3), "anything");
  EXPECT_EQ(Details(4), "ERROR");
  EXPECT_EQ(Boxes(), "");
}

// The month's bitmap.

TEST_F(Pack_Lookup_Test, Makes_the_month_s_bitmap_from_its_picture) {
  Put("3.jpg", Small_Jpeg());
  EXPECT_EQ(Path(3), "C:\\Meridex\\Test\\3.bmp");
  const std::string bitmap = Files.Bytes(Folder + "3.bmp").value();
  ASSERT_EQ(bitmap.size(), 54U + 8U);
  EXPECT_EQ(bitmap.substr(54, 6), "\x1E\x14\x0A\x1E\x14\x0A");
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Pack_Lookup_Test, A_bitmap_that_is_there_is_taken_as_it_is) {
  Put("3.bmp", "not even a bitmap");
  Put("2.bmp", "old");
  EXPECT_EQ(Path(3), "C:\\Meridex\\Test\\3.bmp") << "without any picture";
  EXPECT_EQ(Files.Bytes(Folder + "3.bmp"), "not even a bitmap");
  EXPECT_TRUE(Holds("2.bmp")) << "an old one stays as long as none is made";
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Pack_Lookup_Test, A_bitmap_s_name_counts_in_any_case) {
  Put("3.BMP", "there");
  EXPECT_EQ(Path(3), "C:\\Meridex\\Test\\3.bmp");
  EXPECT_EQ(Files.Bytes(Folder + "3.bmp"), "there");
}

TEST_F(Pack_Lookup_Test, Making_a_bitmap_deletes_the_old_ones_first) {
  Put("2.bmp", "old");
  Put("any other.bmp", "old");
  Put("3.jpg", Small_Jpeg());
  Path(3);
  EXPECT_FALSE(Holds("2.bmp") || Holds("any other.bmp"));
  EXPECT_TRUE(Holds("3.bmp"));
}

TEST_F(Pack_Lookup_Test, Old_bitmaps_go_even_if_the_new_one_cannot_be_made) {
  Put("2.bmp", "old");
  EXPECT_EQ(Path(3), "ERROR");
  EXPECT_FALSE(Holds("2.bmp"));
}

TEST_F(Pack_Lookup_Test, A_missing_picture_is_told) {
  Files.Make_Folder(Folder);
  EXPECT_EQ(Path(3), "ERROR");
  EXPECT_EQ(Boxes(), picture_failure);
}

TEST_F(Pack_Lookup_Test, A_missing_pack_has_no_picture) {
  EXPECT_EQ(Path(3), "ERROR");
  EXPECT_EQ(Boxes(), picture_failure);
  EXPECT_EQ(Settings.Values.Use_Themes, 0);
}

TEST_F(Pack_Lookup_Test, A_picture_that_cannot_be_decoded_is_told_and_leaves_no_bitmap) {
  const std::string whole = Small_Jpeg();
  for (const std::string& bytes : {std::string(), whole.substr(0, whole.size() - 2), whole.substr(0, 20),
                                   "GIF89a" + whole, "BM" + whole, memory::Jpeg_Of({20000, 20000, 0, 0, 0})}) {
    Put("3.jpg", bytes);
    EXPECT_EQ(Path(3), "ERROR");
    EXPECT_EQ(Boxes(), picture_failure);
    EXPECT_FALSE(Holds("3.bmp"));
  }
}

TEST_F(Pack_Lookup_Test, A_bitmap_that_cannot_be_written_is_told) {
  Put("3.jpg", Small_Jpeg());
  Files.Block(Folder + "3.bmp");
  EXPECT_EQ(Path(3), "ERROR");
  EXPECT_EQ(Boxes(), picture_failure);
}

TEST_F(Pack_Lookup_Test, A_failed_picture_can_be_tried_again) {
  Path(3);
  Put("3.jpg", Small_Jpeg());
  EXPECT_EQ(Path(3), "C:\\Meridex\\Test\\3.bmp") << "pictures don't use the file number";
}

// Old bitmaps.

TEST_F(Pack_Lookup_Test, Only_names_that_end_in_small_bmp_are_deleted) {
  for (const char* const name :
       {"1.bmp", "a.b.bmp", ".bmp", "5.BMP", "6.Bmp", "bmp", "3.bmp.txt", "4.jpg", "settings.ini"})
    Put(name, "x");
  Packs.Delete_Old_Bmps("Test");
  for (const char* const name : {"1.bmp", "a.b.bmp", ".bmp"}) EXPECT_FALSE(Holds(name)) << name;
  for (const char* const name : {"5.BMP", "6.Bmp", "bmp", "3.bmp.txt", "4.jpg", "settings.ini"})
    EXPECT_TRUE(Holds(name)) << name;
}

TEST_F(Pack_Lookup_Test, A_missing_folder_has_no_old_bitmaps) {
  Packs.Delete_Old_Bmps("Nowhere");
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Pack_Lookup_Test, The_first_bitmap_that_cannot_be_deleted_ends_it_silently) {
  for (const char* const name : {"1.bmp", "2.bmp", "3.bmp"}) Put(name, "x");
  const auto open = Files.Create(Folder + "2.bmp");
  Packs.Delete_Old_Bmps("Test");
  EXPECT_FALSE(Holds("1.bmp"));
  EXPECT_TRUE(Holds("2.bmp"));
  EXPECT_TRUE(Holds("3.bmp"));
  EXPECT_EQ(Boxes(), "");
}

// Whole packs.

TEST_F(Pack_Lookup_Test, A_whole_pack_has_thirteen_files) {
  std::vector<std::string> names = {"settings.ini"};
  for (int month = 1; month <= 12; ++month) names.push_back(std::to_string(month) + ".jpg");
  for (const std::string& name : names) Put(name, "whatever it holds");
  EXPECT_TRUE(packs::All_Files(Files, "C:\\Meridex\\Test"));
  for (const std::string& name : names) {
    Files.Remove(Folder + name);
    EXPECT_FALSE(packs::All_Files(Files, "C:\\Meridex\\Test")) << name;
    Put(name, "");
    EXPECT_TRUE(packs::All_Files(Files, "C:\\Meridex\\Test")) << name;
  }
  EXPECT_FALSE(packs::All_Files(Files, "C:\\Meridex\\Nowhere"));
}
