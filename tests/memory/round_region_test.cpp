#include "memory/round_region.h"

#include <gtest/gtest.h>

using memory::Round_Region;
using toolkit::Pixel_Rect;

TEST(Round_Region_Test, Is_cut_at_the_corners_and_ends_before_the_last_column_and_row) {
  const auto rects = Round_Region(138, 54, 28).Rects();
  EXPECT_EQ(rects.front(), (Pixel_Rect{10, 0, 127, 1}));
  EXPECT_EQ(rects[1], (Pixel_Rect{8, 1, 129, 2}));
  EXPECT_EQ(rects[2], (Pixel_Rect{6, 2, 131, 3}));
  EXPECT_EQ(rects[6], (Pixel_Rect{2, 6, 135, 8}));
  EXPECT_EQ(rects[8], (Pixel_Rect{0, 10, 137, 43}));
  EXPECT_EQ(rects.back(), (Pixel_Rect{10, 52, 127, 53}));
}

TEST(Round_Region_Test, Without_corners_it_is_a_rectangle) {
  EXPECT_EQ(Round_Region(11, 6, 0).Rects(), (std::vector<Pixel_Rect>{{0, 0, 10, 5}}));
}

TEST(Round_Region_Test, Corners_larger_than_the_rectangle_are_cut_down_to_it) {
  const auto rects = Round_Region(11, 11, 100).Rects();
  EXPECT_EQ(rects.front().Top, 0);
  EXPECT_EQ(rects.back().Bottom, 10);
}
