// What the program relies on of the settings store, the screen, its density and the measure of texts.
#include "tests/contract/service_world.h"

namespace {

class Store_Cases : public Service_Cases {
 protected:
  std::string Get(const std::string& key) { return Store.Get("Meridex Test", "Settings", key, "default"); }
  void Save(const std::string& key, const std::string& text) { Store.Save("Meridex Test", "Settings", key, text); }

  platform::Settings_Store& Store = World->System().Store;
};

class Screen_Cases : public Service_Cases {
 protected:
  platform::Screen& Screen = World->System().Screen;
  toolkit::Backend& Backend = World->Backend();
};

}  // namespace

TEST_F(Store_Cases, An_absent_key_gives_the_default) { EXPECT_EQ(Get("Never Saved"), "default"); }

TEST_F(Store_Cases, A_saved_text_is_given_back_and_replaced) {
  Save("Start Day", "2");
  EXPECT_EQ(Get("Start Day"), "2");
  Save("Start Day", "a longer text with M\xE4rz");
  EXPECT_EQ(Get("Start Day"), "a longer text with M\xE4rz");
  Save("Start Day", "");
  EXPECT_EQ(Get("Start Day"), "");
}

TEST_F(Store_Cases, Names_count_without_regard_to_case) {
  Save("Use Themes", "1");
  EXPECT_EQ(Get("USE themes"), "1");
}

TEST_F(Store_Cases, A_long_text_is_given_back_whole) {
  const std::string text(3000, 'x');
  Save("Long", text);
  EXPECT_EQ(Get("Long"), text);
}

TEST_F(Screen_Cases, The_work_area_lies_on_the_screen) {
  const platform::Pixel_Area screen = Screen.Bounds();
  const platform::Pixel_Area area = Screen.Work_Area();
  EXPECT_GT(screen.Width, 0);
  EXPECT_GT(screen.Height, 0);
  EXPECT_GE(area.Left, screen.Left);
  EXPECT_LE(area.Left + area.Width, screen.Left + screen.Width);
  EXPECT_LE(area.Top + area.Height, screen.Top + screen.Height);
}

TEST_F(Screen_Cases, The_toolkit_and_the_screen_agree_on_twips) {
  EXPECT_GT(Screen.Twips_Per_Pixel_X(), 0);
  EXPECT_EQ(Backend.Twips_Per_Pixel(toolkit::Axis::Across), Screen.Twips_Per_Pixel_X());
  EXPECT_EQ(Backend.Twips_Per_Pixel(toolkit::Axis::Down), Screen.Twips_Per_Pixel_Y());
  EXPECT_EQ(Backend.Screen_Size(toolkit::Axis::Across), Screen.Bounds().Width * Screen.Twips_Per_Pixel_X());
}

TEST_F(Screen_Cases, A_longer_text_is_wider) {
  const toolkit::Font font{"MS Sans Serif"};
  EXPECT_EQ(Backend.Text_Width(font, ""), 0);
  EXPECT_GT(Backend.Text_Width(font, "Dentist"), 0);
  EXPECT_GT(Backend.Text_Width(font, "Dentist at nine"), Backend.Text_Width(font, "Dentist"));
}

TEST_F(Screen_Cases, The_longest_beginning_is_strictly_narrower_than_the_limit) {
  const toolkit::Font font{"MS Sans Serif"};
  const std::string text = "Dentist at nine";
  for (std::size_t length = 1; length <= text.size(); ++length) {
    const double width = Backend.Text_Width(font, std::string_view(text).substr(0, length));
    EXPECT_LT(Backend.Longest_Beginning(font, text, width), length);
  }
  EXPECT_EQ(Backend.Longest_Beginning(font, text, 1e6), text.size());
}

TEST_F(Screen_Cases, A_text_that_breaks_is_higher) {
  const toolkit::Font font{"MS Sans Serif"};
  const double one_line = Backend.Text_Height(font, "Dentist at nine", 1e5);
  EXPECT_GT(one_line, 0);
  EXPECT_GT(Backend.Text_Height(font, "Dentist at nine", Backend.Text_Width(font, "Dentist at n")), one_line);
}
