#include "basic/find_byte.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using basic::Find_Byte;

namespace {

constexpr int block = 16;
constexpr int wide_block = 64;
constexpr int longest = wide_block + 3 * block + 3;

// The bytes to search stand in the middle of a buffer that is full of the wanted byte elsewhere: a search that looks
// outside finds a wrong one.
class Window_In_A_Buffer {
 public:
  Window_In_A_Buffer(int start, int length, char wanted)
      : bytes_(static_cast<std::size_t>(start) + static_cast<std::size_t>(length) + block, wanted), start_(start),
        length_(length) {
    for (int i = 0; i < length; ++i) At(i) = static_cast<char>(wanted + 1);
  }

  char& At(int i) { return bytes_[static_cast<std::size_t>(start_) + static_cast<std::size_t>(i)]; }
  [[nodiscard]] const char* Begin() const { return bytes_.data() + start_; }
  [[nodiscard]] const char* End() const { return Begin() + length_; }

 private:
  std::vector<char> bytes_;
  int start_, length_;
};

}  // namespace

TEST(Find_Byte, Gives_the_end_if_the_byte_is_not_there) {
  for (int start = 0; start <= block; ++start) {
    for (int length = 0; length <= longest; ++length) {
      const Window_In_A_Buffer window(start, length, '"');
      ASSERT_EQ(Find_Byte(window.Begin(), window.End(), '"'), window.End()) << start << ' ' << length;
    }
  }
}

TEST(Find_Byte, Finds_it_at_every_place_of_every_length_and_alignment) {
  for (int start = 0; start <= block; ++start) {
    for (int length = 1; length <= longest; ++length) {
      for (int place = 0; place < length; ++place) {
        Window_In_A_Buffer window(start, length, '"');
        window.At(place) = '"';
        ASSERT_EQ(Find_Byte(window.Begin(), window.End(), '"') - window.Begin(), place) << start << ' ' << length;
      }
    }
  }
}

TEST(Find_Byte, Gives_the_first_of_two) {
  for (int first = 0; first < longest; ++first) {
    for (int second = first + 1; second < longest; ++second) {
      Window_In_A_Buffer window(1, longest, '"');
      window.At(first) = '"';
      window.At(second) = '"';
      ASSERT_EQ(Find_Byte(window.Begin(), window.End(), '"') - window.Begin(), first) << second;
    }
  }
}

TEST(Find_Byte, Finds_every_byte_value_among_all_others) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  for (int code = 0; code < 256; ++code) {
    const char* const hit = Find_Byte(all.data(), all.data() + all.size(), static_cast<char>(code));
    EXPECT_EQ(hit - all.data(), code);
  }
}

TEST(Find_Byte, Bears_an_empty_range) {
  EXPECT_EQ(Find_Byte(nullptr, nullptr, 'a'), nullptr);
  const char a = 'a';
  EXPECT_EQ(Find_Byte(&a, &a, 'a'), &a);
}
