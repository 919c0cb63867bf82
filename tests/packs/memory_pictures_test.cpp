#include "memory/memory_pictures.h"

#include <gtest/gtest.h>

#include "memory/memory_files.h"
#include "tests/basic/error_of.h"

using memory::Jpeg_Of;

namespace {

const std::string jpeg = "C:\\Meridex\\1.jpg";
const std::string bitmap = "C:\\Meridex\\1.bmp";

class Memory_Pictures_Test : public ::testing::Test {
 protected:
  int Error_Of_Converting() {
    return Error_Of([&] { Pictures.Convert_To_Bitmap(jpeg, bitmap); });
  }
  int Error_Of_Bytes(const std::string& bytes) {
    Files.Put(jpeg, bytes);
    return Error_Of_Converting();
  }

  memory::Virtual_Time Time;
  memory::Memory_Files Files{Time};
  memory::Memory_Pictures Pictures{Files};
};

unsigned Number_At(const std::string& bytes, std::size_t at, int size) {
  unsigned number = 0;
  while (size-- > 0) number = number << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(size)]);
  return number;
}

}  // namespace

TEST_F(Memory_Pictures_Test, A_JPEG_is_one_from_its_start_to_its_end) {
  const std::string bytes = Jpeg_Of({640, 480, 255, 0, 128});
  EXPECT_TRUE(bytes.starts_with("\xFF\xD8\xFF\xFE"));
  EXPECT_TRUE(bytes.ends_with("\xFF\xD9"));
  EXPECT_EQ(static_cast<unsigned char>(bytes[4]) * 256U + static_cast<unsigned char>(bytes[5]), bytes.size() - 6)
      << "the comment's length counts its own two bytes";
}

TEST_F(Memory_Pictures_Test, Writes_a_bitmap_of_24_bits_a_pixel) {
  ASSERT_EQ(Error_Of_Bytes(Jpeg_Of({3, 2, 0xAA, 0xBB, 0xCC})), 0);
  const std::string bytes = Files.Bytes(bitmap).value();
  ASSERT_EQ(bytes.size(), 54U + 24U) << "rows of 9 bytes take 12";
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  EXPECT_EQ(Number_At(bytes, 2, 4), bytes.size());
  EXPECT_EQ(Number_At(bytes, 10, 4), 54U);
  EXPECT_EQ(Number_At(bytes, 14, 4), 40U);
  EXPECT_EQ(Number_At(bytes, 18, 4), 3U);
  EXPECT_EQ(Number_At(bytes, 22, 4), 2U);
  EXPECT_EQ(Number_At(bytes, 26, 2), 1U);
  EXPECT_EQ(Number_At(bytes, 28, 2), 24U);
  EXPECT_EQ(Number_At(bytes, 30, 4), 0U);
  EXPECT_EQ(Number_At(bytes, 34, 4), 24U);
  const std::string row("\xCC\xBB\xAA\xCC\xBB\xAA\xCC\xBB\xAA\0\0\0", 12);
  EXPECT_EQ(bytes.substr(54), row + row);
}

TEST_F(Memory_Pictures_Test, A_missing_picture_is_error_53) { EXPECT_EQ(Error_Of_Converting(), 53); }

TEST_F(Memory_Pictures_Test, Whatever_is_no_picture_is_error_481) {
  const std::string whole = Jpeg_Of({2, 2, 1, 2, 3});
  for (std::size_t size = 0; size < whole.size(); ++size) EXPECT_EQ(Error_Of_Bytes(whole.substr(0, size)), 481) << size;
  EXPECT_EQ(Error_Of_Bytes("GIF89a" + std::string(100, 'x')), 481);
  EXPECT_EQ(Error_Of_Bytes("\x89PNG\r\n\x1A\n" + whole), 481);
  EXPECT_EQ(Error_Of_Bytes(whole + whole), 0) << "what stands behind the end doesn't count";
}

TEST_F(Memory_Pictures_Test, Sizes_beyond_all_reason_are_error_481) {
  for (const auto& [width, height] : {std::pair{20000, 20000}, {65501, 1}, {1, 65501}, {0, 5}, {5, 0}, {-1, 5}})
    EXPECT_EQ(Error_Of_Bytes(Jpeg_Of({width, height, 0, 0, 0})), 481) << width << " " << height;
  EXPECT_EQ(Error_Of_Bytes(Jpeg_Of({65500, 1, 0, 0, 0})), 0);
  EXPECT_EQ(Error_Of_Bytes(Jpeg_Of({2, 2, 256, 0, 0})), 481);
}

TEST_F(Memory_Pictures_Test, A_full_disk_is_error_61_and_leaves_no_bitmap) {
  Files.Fill_Up(bitmap);
  EXPECT_EQ(Error_Of_Bytes(Jpeg_Of({2, 2, 1, 2, 3})), 61);
  EXPECT_FALSE(Files.File_Exists(bitmap));
}

TEST_F(Memory_Pictures_Test, A_folder_in_the_bitmap_s_place_is_error_75) {
  Files.Block(bitmap);
  EXPECT_EQ(Error_Of_Bytes(Jpeg_Of({2, 2, 1, 2, 3})), 75);
}
