#include "basic/int16.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>

#include "tests/basic/error_of.h"

using basic::Int16;

static_assert(Int16().Value() == 0);
static_assert(!std::is_constructible_v<Int16, double>, "a fraction must be rounded by its owner first");

TEST(Int16, Holds_every_number_of_16_bits) {
  for (int number = -32768; number <= 32767; ++number) ASSERT_EQ(Int16(number).Value(), number);
}

TEST(Int16, Throws_overflow_beyond_32767) {
  EXPECT_EQ(Error_Of([] { Int16{32767}; }), 0);
  EXPECT_EQ(Error_Of([] { Int16{32768}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{65535U}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{65536}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{std::numeric_limits<int>::max()}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{std::numeric_limits<std::int64_t>::max()}; }), 6);
}

TEST(Int16, Throws_overflow_below_minus_32768) {
  EXPECT_EQ(Error_Of([] { Int16{-32768}; }), 0);
  EXPECT_EQ(Error_Of([] { Int16{-32769}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{-65536}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{std::numeric_limits<std::int64_t>::min()}; }), 6);
}

TEST(Int16, Throws_overflow_for_unsigned_numbers_that_look_negative_in_64_bits) {
  EXPECT_EQ(Error_Of([] { Int16{std::numeric_limits<std::uint64_t>::max()}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{std::uint64_t{1} << 63}; }), 6);
  EXPECT_EQ(Error_Of([] { Int16{std::numeric_limits<std::uint32_t>::max()}; }), 6);
}

TEST(Int16, Takes_small_types) {
  EXPECT_EQ(Int16(static_cast<std::int8_t>(-128)).Value(), -128);
  EXPECT_EQ(Int16(static_cast<std::uint8_t>(255)).Value(), 255);
  EXPECT_EQ(Int16(true).Value(), 1);
  EXPECT_EQ(Int16('a').Value(), 97);
}

TEST(Int16, Adds_and_throws_overflow_on_either_side) {
  EXPECT_EQ((Int16(32766) + 1).Value(), 32767);
  EXPECT_EQ(Error_Of([] { Int16(32767) + 1; }), 6);
  EXPECT_EQ((Int16(-32767) + Int16(-1)).Value(), -32768);
  EXPECT_EQ(Error_Of([] { Int16(-32768) + Int16(-1); }), 6);
  EXPECT_EQ(Error_Of([] { Int16(32767) + Int16(32767); }), 6);
  EXPECT_EQ((Int16(-32768) + Int16(32767)).Value(), -1);
}

TEST(Int16, Subtracts_and_throws_overflow_on_either_side) {
  EXPECT_EQ((Int16(-32767) - 1).Value(), -32768);
  EXPECT_EQ(Error_Of([] { Int16(-32768) - 1; }), 6);
  EXPECT_EQ((Int16(32766) - Int16(-1)).Value(), 32767);
  EXPECT_EQ(Error_Of([] { Int16(32767) - Int16(-1); }), 6);
  EXPECT_EQ(Error_Of([] { Int16(0) - Int16(-32768); }), 6);
  EXPECT_EQ((Int16(-1) - Int16(-32768)).Value(), 32767);
}

TEST(Int16, Multiplies_and_throws_overflow_on_either_side) {
  EXPECT_EQ((Int16(546) * 60).Value(), 32760);
  EXPECT_EQ(Error_Of([] { Int16(547) * 60; }), 6);
  EXPECT_EQ((Int16(-546) * 60).Value(), -32760);
  EXPECT_EQ(Error_Of([] { Int16(-547) * 60; }), 6);
  EXPECT_EQ((Int16(-32768) * 1).Value(), -32768);
  EXPECT_EQ(Error_Of([] { Int16(-32768) * -1; }), 6);
  EXPECT_EQ(Error_Of([] { Int16(-32768) * Int16(-32768); }), 6);
  EXPECT_EQ((Int16(181) * Int16(181)).Value(), 32761);
  EXPECT_EQ((Int16(32767) * 0).Value(), 0);
}

TEST(Int16, Assigns_a_sum_or_a_difference) {
  Int16 month = 12;
  EXPECT_EQ((month += 1).Value(), 13);
  EXPECT_EQ(month.Value(), 13);
  EXPECT_EQ((month -= 20).Value(), -7);
  EXPECT_EQ(month.Value(), -7);
}

TEST(Int16, Keeps_its_value_when_an_assignment_overflows) {
  Int16 year = 32767;
  EXPECT_EQ(Error_Of([&] { year += 1; }), 6);
  EXPECT_EQ(year.Value(), 32767);
  year = -32768;
  EXPECT_EQ(Error_Of([&] { year -= 1; }), 6);
  EXPECT_EQ(year.Value(), -32768);
}

TEST(Int16, Compares_by_value) {
  const int samples[] = {-32768, -256, -1, 0, 1, 255, 256, 32767};
  for (const int a : samples) {
    for (const int b : samples) {
      EXPECT_EQ(Int16(a) == Int16(b), a == b);
      EXPECT_EQ(Int16(a) != Int16(b), a != b);
      EXPECT_EQ(Int16(a) < Int16(b), a < b);
      EXPECT_EQ(Int16(a) <= Int16(b), a <= b);
      EXPECT_EQ(Int16(a) > Int16(b), a > b);
      EXPECT_EQ(Int16(a) >= Int16(b), a >= b);
    }
  }
  EXPECT_TRUE(Int16(7) == 7);
  EXPECT_TRUE(Int16(7) < 8);
}
