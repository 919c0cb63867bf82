#include "toolkit/image.h"

#include <gtest/gtest.h>

#include "tests/toolkit/fake_backend.h"

using toolkit::Picture_Box;

namespace {

/// Two by two pixels with colours of their own.
class Four_Colours : public platform::Picture {
 public:
  [[nodiscard]] int Width() const override { return 2; }
  [[nodiscard]] int Height() const override { return 2; }
  [[nodiscard]] int Pixel(int x, int y) const override { return x < 0 || x > 1 || y < 0 || y > 1 ? -1 : 10 * y + x; }
};

/// A pixel is 15 twips wide and 12 high.
class Image_Test : public ::testing::Test, public Loaded_Form {
 protected:
  Picture_Box Pal{Window, "Pal"};
};

}  // namespace

TEST_F(Image_Test, Tells_of_another_picture) {
  toolkit::Image image(Window, "Image1");
  image.Picture = platform::Stock_Picture::Program_Icon;
  image.Picture = platform::Stock_Picture::Program_Icon;
  image.Loaded = std::make_shared<Four_Colours>();
  EXPECT_EQ(Backend.Take(), (Words{"Image1 appearance", "Image1 appearance"}));
}

TEST_F(Image_Test, A_drawing_grows_by_what_is_drawn_and_tells_of_it) {
  Pal.Draw({1, 2, 3, 4, 5, toolkit::Draw_Mode::Invert, {}});
  Pal.Draw({6, 7, 6, 7, 8, toolkit::Draw_Mode::Copy, "9"});
  EXPECT_EQ(Backend.Take(), (Words{"Pal appearance", "Pal appearance"}));
  ASSERT_EQ(Pal.Drawing().size(), 2U);
  EXPECT_EQ(Pal.Drawing()[0].To_Y, 4);
  EXPECT_EQ(Pal.Drawing()[1].Text, "9");
}

TEST_F(Image_Test, Clearing_takes_the_drawing_off_and_tells_of_it_once) {
  Pal.Draw({});
  Backend.Take();
  Pal.Cls();
  Pal.Cls();
  EXPECT_TRUE(Pal.Drawing().empty());
  EXPECT_EQ(Backend.Take(), Words{"Pal appearance"});
}

TEST_F(Image_Test, A_point_is_the_pixel_that_it_lies_in) {
  Pal.Loaded = std::make_shared<Four_Colours>();
  EXPECT_EQ(Pal.Point(0, 0), 0);
  EXPECT_EQ(Pal.Point(14.9, 11.9), 0);
  EXPECT_EQ(Pal.Point(15, 0), 1);
  EXPECT_EQ(Pal.Point(0, 12), 10);
  EXPECT_EQ(Pal.Point(29.9, 23.9), 11);
}

TEST_F(Image_Test, A_point_outside_of_the_picture_has_no_colour) {
  Pal.Loaded = std::make_shared<Four_Colours>();
  EXPECT_EQ(Pal.Point(30, 0), -1);
  EXPECT_EQ(Pal.Point(0, 24), -1);
  EXPECT_EQ(Pal.Point(-0.1, 0), -1);
  EXPECT_EQ(Pal.Point(0, -0.1), -1);
}

TEST_F(Image_Test, Without_a_loaded_picture_no_point_has_a_colour) {
  Pal.Picture = platform::Stock_Picture::Program_Icon;
  EXPECT_EQ(Pal.Point(0, 0), -1);
}

TEST_F(Image_Test, The_inner_size_is_in_pixels_and_leaves_the_border_out) {
  Pal.Place({0, 0, 1500, 288});
  EXPECT_EQ(Pal.Inner_Width(), 100);
  EXPECT_EQ(Pal.Inner_Height(), 24);
  Pal.Fixed_Border = true;
  EXPECT_EQ(Pal.Inner_Width(), 98);
  EXPECT_EQ(Pal.Inner_Height(), 22);
}
