// The system's own decoding of a pack's picture, and what it makes of files that are none.
#include <gtest/gtest.h>

#include <string>

#include "tests/basic/error_of.h"
#include "win32/disk_files.h"
#include "win32/system_pictures.h"

namespace {

class System_Pictures_Test : public ::testing::Test {
 protected:
  System_Pictures_Test() { Files.Read_Whole(PACKS_FOLDER "\\Seasons\\7.jpg", Picture); }
  ~System_Pictures_Test() override {
    for (const std::string& path : {Jpeg, Bitmap})
      if (Files.File_Exists(path)) Files.Delete(path);
  }

  int Error_Of_Converting() {
    return Error_Of([&] { Pictures.Convert_To_Bitmap(Jpeg, Bitmap); });
  }
  int Error_Of_Bytes(const std::string& bytes) {
    Files.Create(Jpeg)->Write(bytes);
    return Error_Of_Converting();
  }

  win32::Disk_Files Files;
  win32::System_Pictures Pictures;
  const std::string Jpeg = Files.Program_Folder() + "\\picture.jpg";
  const std::string Bitmap = Files.Program_Folder() + "\\picture.bmp";
  std::string Picture;
};

unsigned Number_At(const std::string& bytes, std::size_t at, int size) {
  unsigned number = 0;
  while (size-- > 0) number = number << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(size)]);
  return number;
}

/// Where a JPEG's frame header has its height, behind which stands the width; two bytes each, the higher first.
std::size_t Place_Of_Size(const std::string& jpeg) { return jpeg.find("\xFF\xC0") + 5; }

}  // namespace

TEST_F(System_Pictures_Test, A_picture_becomes_a_bitmap_of_24_bits_a_pixel) {
  ASSERT_EQ(Error_Of_Bytes(Picture), 0);
  std::string bytes;
  Files.Read_Whole(Bitmap, bytes);
  ASSERT_EQ(bytes.size(), 54U + 1280U * 1024U * 3U);
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  EXPECT_EQ(Number_At(bytes, 2, 4), bytes.size());
  EXPECT_EQ(Number_At(bytes, 10, 4), 54U);
  EXPECT_EQ(Number_At(bytes, 18, 4), 1280U);
  EXPECT_EQ(Number_At(bytes, 22, 4), 1024U);
  EXPECT_EQ(Number_At(bytes, 28, 2), 24U);
  EXPECT_EQ(Number_At(bytes, 30, 4), 0U);
}

TEST_F(System_Pictures_Test, A_missing_picture_is_error_53) { EXPECT_EQ(Error_Of_Converting(), 53); }

TEST_F(System_Pictures_Test, A_file_that_is_no_JPEG_is_error_481_and_leaves_no_bitmap) {
  for (const std::string& bytes : {std::string(), std::string("\xFF"), std::string("\xFF\xD8"), "GIF89a" + Picture,
                                   "BM" + std::string(200, '\0'), std::string(5000, 'x'), Picture.substr(2)}) {
    EXPECT_EQ(Error_Of_Bytes(bytes), 481) << bytes.size();
    EXPECT_FALSE(Files.File_Exists(Bitmap));
  }
}

TEST_F(System_Pictures_Test, A_picture_cut_short_is_error_481) {
  for (const std::size_t kept : {std::size_t{100}, std::size_t{700}, Picture.size() / 2, Picture.size() - 2})
    EXPECT_EQ(Error_Of_Bytes(Picture.substr(0, kept)), 481) << kept;
}

TEST_F(System_Pictures_Test, A_picture_of_20000_by_20000_pixels_is_error_481) {
  Picture.replace(Place_Of_Size(Picture), 4, "\x4E\x20\x4E\x20");
  EXPECT_EQ(Error_Of_Bytes(Picture), 481);
}

TEST_F(System_Pictures_Test, A_bitmap_that_cannot_be_written_is_error_75) {
  const std::string nowhere = Files.Program_Folder() + "\\No such folder\\picture.bmp";
  Files.Create(Jpeg)->Write(Picture);
  const int error = Error_Of([&] { Pictures.Convert_To_Bitmap(Jpeg, nowhere); });
  EXPECT_TRUE(error == 75 || error == 76) << error;
}

TEST_F(System_Pictures_Test, A_loaded_picture_has_the_pixels_of_the_bitmap_that_it_would_become) {
  ASSERT_EQ(Error_Of_Bytes(Picture), 0);
  const platform::Shared_Picture from_jpeg = Pictures.Load(PACKS_FOLDER "\\Seasons\\7.jpg");
  const platform::Shared_Picture from_bitmap = Pictures.Load(Bitmap);
  EXPECT_EQ(from_jpeg->Width(), 1280);
  EXPECT_EQ(from_jpeg->Height(), 1024);
  std::string bytes;
  Files.Read_Whole(Bitmap, bytes);
  for (const int y : {0, 17, 500, 1023})
    for (const int x : {0, 100, 640, 1279}) {
      EXPECT_EQ(from_jpeg->Pixel(x, y), from_bitmap->Pixel(x, y)) << x << ' ' << y;
      const auto at = static_cast<std::size_t>(54 + ((1023 - y) * 1280 + x) * 3);
      const std::uint32_t stored = Number_At(bytes, at, 3);
      const auto swapped = static_cast<int>(stored >> 16 | (stored & 0xFF00) | (stored & 0xFF) << 16);
      EXPECT_EQ(from_jpeg->Pixel(x, y), swapped) << x << ' ' << y;
    }
}

TEST_F(System_Pictures_Test, A_broken_picture_is_not_loaded) {
  for (const std::size_t kept : {std::size_t{0}, std::size_t{100}, Picture.size() / 2}) {
    Files.Create(Jpeg)->Write(Picture.substr(0, kept));
    try {
      Pictures.Load(Jpeg);
      ADD_FAILURE() << kept;
    } catch (const basic::Run_Error& error) {
      EXPECT_EQ(error.Number(), 481) << kept;
    }
  }
}
