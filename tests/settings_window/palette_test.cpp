#include "settings_window/palette.h"

#include <gtest/gtest.h>

#include "memory/memory_platform.h"
#include "tests/toolkit/fake_backend.h"

using settings_window::Palette_Colour;
using toolkit::Draw_Mode;
using toolkit::Rgb;

namespace {

constexpr int last_column = 98, last_row = 49;

int Red(int colour) { return colour & 0xFF; }
int Green(int colour) { return colour >> 8 & 0xFF; }
int Blue(int colour) { return colour >> 16; }

/// A strip of 98 by 21.75 pixels inside its border.
class Strip_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Strip_Test() {
    Strip.Place({135, 1170, 1500, 285});
    Strip.Fixed_Border = true;
  }

  toolkit::Picture_Box Strip{Window, "lbColor"};
};

}  // namespace

TEST(Palette_Test, Is_white_in_the_top_row_and_black_in_the_bottom_row) {
  for (int x = 0; x <= last_column; ++x) {
    EXPECT_EQ(Palette_Colour(x, 0), 16777215) << x;
    EXPECT_EQ(Palette_Colour(x, last_row), 0) << x;
  }
}

TEST(Palette_Test, Gets_darker_from_row_to_row_in_every_column) {
  for (int x = 0; x <= last_column; ++x)
    for (int y = 1; y <= last_row; ++y) {
      const int above = Palette_Colour(x, y - 1), here = Palette_Colour(x, y);
      EXPECT_LT(Red(here) + Green(here) + Blue(here), Red(above) + Green(above) + Blue(above)) << x << ' ' << y;
    }
}

TEST(Palette_Test, Is_grey_in_the_first_and_the_last_column_alone) {
  for (const int x : {0, last_column})
    for (int y = 0; y <= last_row; ++y) {
      const int colour = Palette_Colour(x, y);
      EXPECT_EQ(Red(colour), Green(colour)) << y;
      EXPECT_EQ(Red(colour), Blue(colour)) << y;
    }
  EXPECT_EQ(Palette_Colour(0, 25), Rgb(125, 125, 125));
  EXPECT_EQ(Palette_Colour(last_column, 24), Rgb(130, 130, 130));
  for (int x = 1; x < last_column; ++x) {
    const int colour = Palette_Colour(x, 25);
    EXPECT_FALSE(Red(colour) == Green(colour) && Green(colour) == Blue(colour)) << x;
  }
}

TEST(Palette_Test, Runs_from_red_over_green_and_blue_back_to_red) {
  EXPECT_EQ(Palette_Colour(1, 25), Rgb(250, 0, 0));
  EXPECT_EQ(Palette_Colour(1, 24), Rgb(255, 5, 5));
  EXPECT_EQ(Palette_Colour(2, 25), Rgb(250, 15, 0));
  EXPECT_EQ(Palette_Colour(97, 25), Rgb(250, 0, 15));
  // The hues between which a third of the circle lies.
  EXPECT_EQ(Palette_Colour(33, 25), Rgb(5, 250, 0));
  EXPECT_EQ(Palette_Colour(34, 25), Rgb(0, 250, 10));
  EXPECT_EQ(Palette_Colour(65, 25), Rgb(0, 10, 250));
  EXPECT_EQ(Palette_Colour(66, 25), Rgb(5, 0, 250));
}

TEST(Palette_Test, Is_made_as_a_picture_of_99_by_50_pixels) {
  memory::Memory_Platform platform;
  const platform::Shared_Picture picture = settings_window::Make_Palette(platform.Pictures, platform.Backend());
  EXPECT_EQ(picture->Width(), 99);
  EXPECT_EQ(picture->Height(), 50);
  EXPECT_EQ(picture->Pixel(98, 0), 16777215);
  EXPECT_EQ(picture->Pixel(2, 25), Rgb(250, 15, 0));
  EXPECT_EQ(picture->Pixel(99, 0), -1);
  EXPECT_EQ(picture->Pixel(0, 50), -1);
}

TEST(Colour_Forms_Test, A_colour_is_split_into_its_parts) {
  const settings_window::Colour_Parts parts = settings_window::Split(8390687);
  EXPECT_EQ(parts.Red, 31);
  EXPECT_EQ(parts.Green, 8);
  EXPECT_EQ(parts.Blue, 128);
}

TEST(Colour_Forms_Test, Hexadecimal_parts_of_digits_alone_have_two_of_them_and_a_letter_stays_alone) {
  EXPECT_EQ(settings_window::Forms_Of(0)[1], "#000000");
  EXPECT_EQ(settings_window::Forms_Of(16777215)[1], "#FFFFFF");
  EXPECT_EQ(settings_window::Forms_Of(Rgb(5, 31, 10))[1], "#051FA");
  EXPECT_EQ(settings_window::Forms_Of(Rgb(16, 99, 161))[1], "#1063A1");
}

TEST(Colour_Forms_Test, Decimal_forms_are_the_number_and_the_parts_joined_by_commas) {
  EXPECT_EQ(settings_window::Forms_Of(Rgb(5, 31, 10))[0], "663301");
  EXPECT_EQ(settings_window::Forms_Of(Rgb(5, 31, 10))[2], "5,31,10");
}

TEST_F(Strip_Test, A_ramp_has_256_columns_over_the_whole_height) {
  settings_window::Draw_Ramp(Strip, 0, Rgb(255, 1, 128));
  ASSERT_EQ(Strip.Drawing().size(), 256U);
  for (int i = 0; i < 256; ++i) {
    const auto& line = Strip.Drawing()[static_cast<std::size_t>(i)];
    EXPECT_EQ(line.X, i);
    EXPECT_EQ(line.To_X, i);
    EXPECT_EQ(line.Y, 0);
    EXPECT_EQ(line.To_Y, 21.75);
    EXPECT_EQ(line.Mode, Draw_Mode::Copy);
    EXPECT_EQ(Red(line.Colour), i);
    EXPECT_EQ(Green(line.Colour), i < 128 ? 0 : 1);
  }
  EXPECT_EQ(Strip.Drawing()[0].Colour, 0);
  EXPECT_EQ(Blue(Strip.Drawing()[1].Colour), 1);
  EXPECT_EQ(Blue(Strip.Drawing()[3].Colour), 2);
  EXPECT_EQ(Strip.Drawing()[255].Colour, Rgb(255, 1, 128));
}

TEST_F(Strip_Test, A_ramp_starts_at_its_first_colour) {
  settings_window::Draw_Ramp(Strip, Rgb(200, 100, 0), Rgb(0, 100, 51));
  EXPECT_EQ(Strip.Drawing()[0].Colour, Rgb(200, 100, 0));
  EXPECT_EQ(Strip.Drawing()[51].Colour, Rgb(160, 100, 10));
  EXPECT_EQ(Strip.Drawing()[255].Colour, Rgb(0, 100, 51));
}

TEST_F(Strip_Test, A_ruler_inverts_what_it_lies_on_and_numbers_all_marks_but_the_first) {
  settings_window::Draw_Ruler(Strip);
  ASSERT_EQ(Strip.Drawing().size(), 20U);
  const auto& line = Strip.Drawing()[0];
  EXPECT_EQ(line.X, 0);
  EXPECT_EQ(line.Y, 14.5);
  EXPECT_EQ(line.To_X, 98);
  EXPECT_EQ(line.To_Y, 14.5);
  std::size_t at = 1;
  for (int number = 0; number < 10; ++number) {
    const auto& mark = Strip.Drawing()[at++];
    EXPECT_EQ(mark.X, 10 * number - 1);
    EXPECT_EQ(mark.Y, 9.5);
    EXPECT_EQ(mark.To_X, 10 * number - 1);
    EXPECT_EQ(mark.To_Y, 14.5);
    EXPECT_EQ(mark.Text, "");
    if (number == 0) continue;
    const auto& text = Strip.Drawing()[at++];
    EXPECT_EQ(text.Text, std::to_string(number));
    EXPECT_EQ(text.X, 10 * number - 6);
    EXPECT_EQ(text.Y, 15.5);
  }
  for (const auto& drawn : Strip.Drawing()) EXPECT_EQ(drawn.Mode, Draw_Mode::Invert);
}

TEST(Palette, Keeps_its_outermost_rows_and_columns_in_every_size) {
  memory::Memory_Platform platform;
  for (const auto& [width, height] : {std::pair(74, 38), std::pair(149, 75), std::pair(198, 100)}) {
    const platform::Shared_Picture picture = settings_window::Make_Palette(platform.Pictures, width, height);
    ASSERT_EQ(picture->Width(), width);
    ASSERT_EQ(picture->Height(), height);
    for (int x = 0; x < width; ++x) {
      EXPECT_EQ(picture->Pixel(x, 0), 16777215);
      EXPECT_EQ(picture->Pixel(x, height - 1), 0);
    }
    for (const int x : {0, width - 1}) {
      const int colour = picture->Pixel(x, height / 3);
      EXPECT_EQ(colour & 0xFF, colour >> 16) << "grey";
      EXPECT_EQ(colour & 0xFF, colour >> 8 & 0xFF);
    }
  }
}
