// The pictures of the tabs "Wallpaper" and "Style & Position", and what becomes of the window while the twelve months are
// shown: what no scenario can see.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/calendar/program_world.h"
#include "toolkit/check_box.h"
#include "toolkit/image.h"
#include "toolkit/item_list.h"
#include "toolkit/slider.h"

namespace {

constexpr int colour_step = 20;  // the red of month m's picture is m times this

class Pack_Pictures_Test : public ::testing::Test, public Program_World {
 protected:
  Pack_Pictures_Test() {
    Make_Pack("Seasons", 0);
    Make_Pack("Alps", 1);
    Put("Pack Name", "Seasons");
    Put("Settings Tab", "6");
    Platform.Registry.Put(platform::Hive::Current_User, desktop, "WallpaperStyle", "0");
  }

  void Make_Pack(const std::string& name, int green) {
    std::string lines;
    for (int month = 1; month <= 12; ++month) {
      const std::string number = std::to_string(month);
      lines += number + "=1-0-2\r\n";
      Platform.Files.Put(Path(name + "/" + number + ".jpg"), memory::Jpeg_Of({4, 3, month * colour_step, green, 0}));
    }
    Platform.Files.Put(Path(name + "/settings.ini"), lines);
  }

  static std::string Path(const std::string& name) { return memory::Memory_Files::Full_Path(name); }
  void Put(const char* key, const char* value) { Platform.Store.Save("Meridex", "Settings", key, value); }

  void Open() {
    Start();
    toolkit::Form& calendar = *Window("Main_Frm");
    Platform.Loop.Dispatch([&] {
      calendar.Activate();
      Platform.User.Press_Key(calendar, {{toolkit::key_f8}, ""});
    });
  }

  template <class Kind>
  Kind& Get(const std::string& name) {
    const auto& controls = Window("Settings_Frm")->Controls();
    const auto found = std::find_if(controls.begin(), controls.end(), [&](const auto* c) { return c->Name == name; });
    return dynamic_cast<Kind&>(**found);
  }

  /// The month and the pack (its green) of the picture that an image shows; {0, 0} where it shows none.
  std::pair<int, int> Shown(const char* image) {
    const auto picture = Get<toolkit::Image>(image).Loaded();
    if (picture == nullptr) return {0, 0};
    const int colour = picture->Pixel(0, 0);
    return {(colour & 0xFF) / colour_step, colour >> 8 & 0xFF};
  }

  void Click(const char* name) {
    auto& control = Get<toolkit::Control>(name);
    Platform.Loop.Dispatch([&] { control.User_Click(); });
  }

  static constexpr const char* desktop = "Control Panel\\Desktop";
};

using Month_And_Pack = std::pair<int, int>;

}  // namespace

TEST_F(Pack_Pictures_Test, The_months_picture_follows_the_slider) {
  Put("Use Themes", "1");
  Open();
  EXPECT_EQ(Shown("Theme_Preview_Img"), Month_And_Pack(3, 0));
  Platform.Loop.Dispatch([this] { Platform.User.Slide(Get<toolkit::Slider>("Preview_Sli"), 7); });
  EXPECT_EQ(Shown("Theme_Preview_Img"), Month_And_Pack(7, 0));
  EXPECT_FALSE(Get<toolkit::Label>("Loading_Lbl").Visible);
}

TEST_F(Pack_Pictures_Test, While_a_picture_is_loaded_the_label_is_on_view_and_the_old_picture_off) {
  Put("Use Themes", "1");
  Open();
  Platform.Files.Put(Path("Seasons/7.jpg"), "nonsense");
  EXPECT_ANY_THROW(Get<toolkit::Slider>("Preview_Sli").Value = 7);
  EXPECT_TRUE(Get<toolkit::Label>("Loading_Lbl").Visible);
  EXPECT_EQ(Shown("Theme_Preview_Img"), Month_And_Pack(0, 0));
}

TEST_F(Pack_Pictures_Test, A_picked_pack_shows_its_month_of_today_on_the_small_screen_too) {
  Put("Use Themes", "1");
  Open();
  EXPECT_EQ(Shown("Pos_Preview_Img"), Month_And_Pack(3, 0));
  Platform.Loop.Dispatch([this] { Platform.User.Choose(Get<toolkit::Combo_Box>("Packs_Cbo"), "Alps"); });
  EXPECT_EQ(Shown("Theme_Preview_Img"), Month_And_Pack(3, 1));
  EXPECT_EQ(Shown("Pos_Preview_Img"), Month_And_Pack(3, 1));
}

TEST_F(Pack_Pictures_Test, With_packs_off_the_small_screen_keeps_the_desktops_picture) {
  Platform.Files.Put(Path("old.jpg"), memory::Jpeg_Of({2, 2, 10 * colour_step, 9, 0}));
  Platform.Registry.Put(platform::Hive::Current_User, desktop, "Wallpaper", Path("old.jpg"));
  Open();
  EXPECT_EQ(Shown("Pos_Preview_Img"), Month_And_Pack(10, 9));
  EXPECT_EQ(Shown("Theme_Preview_Img"), Month_And_Pack(3, 0)) << "the pack is shown all the same";
  Click("Theme_Use_Chk");
  EXPECT_EQ(Shown("Pos_Preview_Img"), Month_And_Pack(3, 0));
  Click("Theme_Use_Chk");
  EXPECT_EQ(Shown("Pos_Preview_Img"), Month_And_Pack(10, 9));
  Platform.Registry.Put(platform::Hive::Current_User, desktop, "Wallpaper", Path("gone.jpg"));
  Click("Theme_Use_Chk");
  Click("Theme_Use_Chk");
  EXPECT_EQ(Shown("Pos_Preview_Img"), Month_And_Pack(3, 0)) << "the old one stays where there is none to show";
}

TEST_F(Pack_Pictures_Test, A_pack_that_is_lost_takes_its_picture_off) {
  Put("Use Themes", "1");
  Open();
  Platform.Files.Remove(Path("Seasons/4.jpg"));
  Platform.Files.Remove(Path("Alps/4.jpg"));
  Platform.Loop.Dispatch([this] { Platform.User.Choose(Get<toolkit::Combo_Box>("Packs_Cbo"), "Alps"); });
  EXPECT_EQ(Shown("Theme_Preview_Img"), Month_And_Pack(0, 0));
}

TEST_F(Pack_Pictures_Test, The_window_is_an_icon_while_the_months_are_shown) {
  Put("Use Themes", "1");
  Open();
  bool minimised = false, button = true;
  Platform.Time.Schedule(Platform.Time.Elapsed() + memory::micros_of_a_second, [&] {
    minimised = Window("Settings_Frm")->Minimised();
    button = Get<toolkit::Control>("Preview_Btn").Enabled;
  });
  Click("Preview_Btn");
  EXPECT_TRUE(minimised);
  EXPECT_FALSE(button);
  EXPECT_FALSE(Window("Settings_Frm")->Minimised());
}

TEST_F(Pack_Pictures_Test, A_program_that_ends_in_the_preview_puts_the_desktops_picture_back) {
  Put("Use Themes", "1");
  Open();
  Platform.Registry.Put(platform::Hive::Current_User, desktop, "Wallpaper", "C:\\old.bmp");
  Platform.Time.Schedule(Platform.Time.Elapsed() + 4 * memory::micros_of_a_second,
                         [this] { Platform.Loop.Dispatch([this] { Platform.Instances.On_Close_Request(); }); });
  EXPECT_THROW(Click("Preview_Btn"), platform::Program_Quit);
  EXPECT_EQ(Window("Main_Frm"), nullptr);
  EXPECT_EQ(Window("Settings_Frm"), nullptr);
  EXPECT_EQ(Platform.Wallpaper.Take_Settings().back().Path, "C:\\old.bmp");
  EXPECT_EQ(Platform.Loop.Failure(), std::nullopt);
}
