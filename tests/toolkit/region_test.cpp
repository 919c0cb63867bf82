#include "toolkit/region.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using toolkit::Pixel_Rect;
using toolkit::Region;
using Rects = std::vector<Pixel_Rect>;

namespace {

constexpr int width = 24;
constexpr int height = 20;

/// A region as a set of pixels, the plain way.
class Bitmap {
 public:
  Bitmap() : pixels_(std::size_t{width} * height, false) {}

  void Fill(const Pixel_Rect& rect) {
    for (int y = rect.Top; y < rect.Bottom; ++y)
      for (int x = rect.Left; x < rect.Right; ++x) Set(x, y);
  }

  void Set(int x, int y) { pixels_[Place(x, y)] = true; }
  [[nodiscard]] bool Get(int x, int y) const { return pixels_[Place(x, y)]; }

  /// The region of all its pixels, one by one.
  [[nodiscard]] Region Pixel_By_Pixel() const {
    Rects rects;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x)
        if (Get(x, y)) rects.push_back({x, y, x + 1, y + 1});
    return Region(rects);
  }

  friend bool operator==(const Bitmap&, const Bitmap&) = default;

 private:
  [[nodiscard]] static std::size_t Place(int x, int y) {
    return static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x);
  }

  std::vector<bool> pixels_;
};

Bitmap Bitmap_Of(const Rects& rects) {
  Bitmap bitmap;
  for (const Pixel_Rect& rect : rects) bitmap.Fill(rect);
  return bitmap;
}

Rects Random_Rects(std::mt19937& random, int count) {
  const auto up_to = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit + 1)); };
  Rects rects;
  for (int i = 0; i < count; ++i) {
    const int left = up_to(width), top = up_to(height);
    rects.push_back({left, top, left + up_to(width - left), top + up_to(height - top)});
  }
  return rects;
}

bool Same_Columns(const Rects& a, const Rects& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (a[i].Left != b[i].Left || a[i].Right != b[i].Right) return false;
  return true;
}

std::vector<Rects> Bands_Of(const Rects& rects) {
  std::vector<Rects> bands;
  for (const Pixel_Rect& rect : rects) {
    if (bands.empty() || bands.back().front().Top != rect.Top) bands.emplace_back();
    bands.back().push_back(rect);
  }
  return bands;
}

/// Bands from top to bottom, all of one height, gaps between neighbours, no two that one would do for.
void Expect_Canonical(const Rects& rects) {
  const std::vector<Rects> bands = Bands_Of(rects);
  for (std::size_t i = 0; i < bands.size(); ++i) {
    for (std::size_t k = 0; k < bands[i].size(); ++k) {
      ASSERT_FALSE(bands[i][k].Empty());
      ASSERT_EQ(bands[i][k].Top, bands[i].front().Top);
      ASSERT_EQ(bands[i][k].Bottom, bands[i].front().Bottom);
      const bool apart = k == 0 || bands[i][k].Left > bands[i][k - 1].Right;
      ASSERT_TRUE(apart);
    }
    if (i == 0) continue;
    ASSERT_GE(bands[i].front().Top, bands[i - 1].front().Bottom);
    const bool touching = bands[i].front().Top == bands[i - 1].front().Bottom;
    ASSERT_FALSE(touching && Same_Columns(bands[i], bands[i - 1]));
  }
}

}  // namespace

TEST(Region, Is_empty_without_rectangles) {
  EXPECT_TRUE(Region().Rects().empty());
  EXPECT_TRUE(Region(Rects{}).Rects().empty());
  EXPECT_EQ(Region(Rects{}), Region());
}

TEST(Region, Leaves_out_empty_and_inverted_rectangles) {
  EXPECT_EQ(Region({{5, 5, 5, 9}, {5, 5, 9, 5}, {9, 9, 5, 5}, {0, 0, 0, 0}}), Region());
  EXPECT_EQ(Region({{5, 5, 5, 9}, {1, 2, 3, 4}}), Region(Rects{{1, 2, 3, 4}}));
}

TEST(Region, Keeps_a_single_rectangle) { EXPECT_EQ(Region(Rects{{1, 2, 3, 4}}).Rects(), (Rects{{1, 2, 3, 4}})); }

TEST(Region, Joins_neighbours_of_one_row) {
  EXPECT_EQ(Region({{0, 0, 5, 5}, {5, 0, 9, 5}}).Rects(), (Rects{{0, 0, 9, 5}}));
  EXPECT_EQ(Region({{5, 0, 9, 5}, {0, 0, 6, 5}}).Rects(), (Rects{{0, 0, 9, 5}}));
  EXPECT_EQ(Region({{0, 0, 9, 5}, {2, 0, 4, 5}}).Rects(), (Rects{{0, 0, 9, 5}}));
}

TEST(Region, Joins_equal_neighbours_one_below_the_other) {
  EXPECT_EQ(Region({{0, 0, 5, 5}, {0, 5, 5, 9}}).Rects(), (Rects{{0, 0, 5, 9}}));
  EXPECT_EQ(Region({{0, 0, 2, 5}, {4, 0, 6, 5}, {0, 5, 2, 9}, {4, 5, 6, 9}}).Rects(),
            (Rects{{0, 0, 2, 9}, {4, 0, 6, 9}}));
}

TEST(Region, Leaves_gaps_open) {
  EXPECT_EQ(Region({{0, 0, 4, 4}, {5, 0, 9, 4}, {0, 5, 4, 9}}).Rects(),
            (Rects{{0, 0, 4, 4}, {5, 0, 9, 4}, {0, 5, 4, 9}}));
}

TEST(Region, Does_not_join_across_a_gap_of_one_row) {
  EXPECT_EQ(Region({{0, 0, 4, 4}, {0, 5, 4, 9}}).Rects(), (Rects{{0, 0, 4, 4}, {0, 5, 4, 9}}));
}

TEST(Region, Counts_an_overlap_once) {
  EXPECT_EQ(Region({{0, 0, 6, 6}, {3, 3, 9, 9}}).Rects(), (Rects{{0, 0, 6, 3}, {0, 3, 9, 6}, {3, 6, 9, 9}}));
}

TEST(Region, Does_not_depend_on_the_order_of_its_rectangles) {
  EXPECT_EQ(Region({{0, 0, 6, 6}, {3, 3, 9, 9}}), Region({{3, 3, 9, 9}, {0, 0, 6, 6}}));
  EXPECT_NE(Region(Rects{{0, 0, 6, 6}}), Region(Rects{{0, 0, 6, 7}}));
}

TEST(Region, Bears_coordinates_on_either_side_of_zero) {
  EXPECT_EQ(Region({{-10, -10, 0, 0}, {0, -10, 10, 0}}).Rects(), (Rects{{-10, -10, 10, 0}}));
}

TEST(Region, Without_nothing_is_itself_and_without_itself_is_empty) {
  const Region region({{0, 0, 6, 6}, {3, 3, 9, 9}});
  EXPECT_EQ(region.Without(Region()), region);
  EXPECT_EQ(region.Without(region), Region());
  EXPECT_EQ(Region().Without(region), Region());
}

TEST(Region, Without_its_client_area_is_its_frame) {
  EXPECT_EQ(Region(Rects{{0, 0, 10, 10}}).Without(Region(Rects{{1, 3, 9, 9}})).Rects(),
            (Rects{{0, 0, 10, 3}, {0, 3, 1, 9}, {9, 3, 10, 9}, {0, 9, 10, 10}}));
  EXPECT_EQ(Region(Rects{{0, 0, 10, 10}}).Without(Region(Rects{{0, 0, 10, 10}})), Region());
}

TEST(Region, Without_several_holes_in_a_row_keeps_what_lies_between) {
  EXPECT_EQ(Region(Rects{{0, 0, 10, 1}}).Without(Region({{1, 0, 2, 1}, {4, 0, 5, 1}, {9, 0, 12, 1}})).Rects(),
            (Rects{{0, 0, 1, 1}, {2, 0, 4, 1}, {5, 0, 9, 1}}));
}

TEST(Region, Agrees_with_a_bitmap_on_random_rectangles) {
  std::mt19937 random(20040305);
  for (int round = 0; round < 2000; ++round) {
    const Rects rects = Random_Rects(random, round % 12);
    const Region region(rects);
    Expect_Canonical(region.Rects());
    if (HasFatalFailure()) return;
    ASSERT_EQ(Bitmap_Of(region.Rects()), Bitmap_Of(rects)) << round;
    ASSERT_EQ(region, Bitmap_Of(rects).Pixel_By_Pixel()) << "one form for one set of pixels, round " << round;
  }
}

TEST(Region, Agrees_with_a_bitmap_on_differences_of_random_regions) {
  std::mt19937 random(19991231);
  for (int round = 0; round < 2000; ++round) {
    const Rects whole = Random_Rects(random, 1 + round % 6), holes = Random_Rects(random, round % 5);
    const Bitmap with = Bitmap_Of(whole), out = Bitmap_Of(holes);
    Bitmap expected;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x)
        if (with.Get(x, y) && !out.Get(x, y)) expected.Set(x, y);
    const Region left = Region(whole).Without(Region(holes));
    Expect_Canonical(left.Rects());
    if (HasFatalFailure()) return;
    ASSERT_EQ(left, expected.Pixel_By_Pixel()) << round;
  }
}
