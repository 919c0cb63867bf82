// What the program relies on of pictures: those it makes and those it loads.
#include "tests/basic/error_of.h"
#include "tests/contract/service_world.h"

namespace {

class Picture_Cases : public Service_Cases {
 protected:
  void Write(const std::string& name, std::string_view bytes) {
    platform::Files& files = World->System().Files;
    files.Create(Path(name))->Write(bytes);
  }

  int Error_Of_Loading(const std::string& path) {
    return Error_Of([&] { Pictures.Load(path); });
  }

  platform::Pictures& Pictures = World->System().Pictures;
};

/// A bitmap file of 24 bits a pixel, three pixels by two, all of one colour.
std::string One_Colour(char red, char green, char blue) {
  std::string bytes("BM\x4E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x03\0\0\0\x02\0\0\0\x01\0\x18\0\0\0\0\0\x18\0\0\0", 38);
  bytes.resize(54);
  for (int row = 0; row < 2; ++row) {
    for (int x = 0; x < 3; ++x) bytes += {blue, green, red};
    bytes += std::string(3, '\0');
  }
  return bytes;
}

}  // namespace

TEST_F(Picture_Cases, A_picture_is_made_pixel_by_pixel) {
  const platform::Shared_Picture made =
      Pictures.Make(4, 3, [](int x, int y) { return x == 3 && y == 1 ? 0x0000FF : 0x100000 * x + 0x1000 * y; });
  EXPECT_EQ(made->Width(), 4);
  EXPECT_EQ(made->Height(), 3);
  EXPECT_EQ(made->Pixel(0, 0), 0);
  EXPECT_EQ(made->Pixel(3, 1), 0x0000FF);
  EXPECT_EQ(made->Pixel(2, 2), 0x202000);
  EXPECT_EQ(made->Pixel(3, 0), 0x300000);
}

TEST_F(Picture_Cases, Outside_a_picture_there_is_no_colour) {
  const platform::Shared_Picture made = Pictures.Make(4, 3, [](int, int) { return 0; });
  for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {4, 0}, {0, 3}}) EXPECT_EQ(made->Pixel(x, y), -1);
}

TEST_F(Picture_Cases, A_bitmap_is_loaded) {
  Write("colour.bmp", One_Colour(10, 20, 30));
  const platform::Shared_Picture loaded = Pictures.Load(Path("colour.bmp"));
  EXPECT_EQ(loaded->Width(), 3);
  EXPECT_EQ(loaded->Height(), 2);
  EXPECT_EQ(loaded->Pixel(0, 0), 10 | 20 << 8 | 30 << 16);
  EXPECT_EQ(loaded->Pixel(2, 1), 10 | 20 << 8 | 30 << 16);
}

TEST_F(Picture_Cases, A_missing_picture_is_error_53) {
  EXPECT_EQ(Error_Of_Loading(Path("none.bmp")), 53);
  EXPECT_EQ(Error_Of_Loading(Path("None\\none.bmp")), 53);
}

TEST_F(Picture_Cases, A_folder_in_a_pictures_place_is_error_75) {
  World->Make_Folder("Folder.bmp");
  EXPECT_EQ(Error_Of_Loading(Path("Folder.bmp")), 75);
}

TEST_F(Picture_Cases, What_is_no_picture_is_error_481) {
  for (const std::string& bytes : {std::string(), std::string("BM"), std::string(300, 'x'),
                                   "BM" + std::string(300, '\0'), One_Colour(1, 2, 3).substr(0, 40)}) {
    Write("broken.bmp", bytes);
    EXPECT_EQ(Error_Of_Loading(Path("broken.bmp")), 481) << bytes.size();
  }
}
