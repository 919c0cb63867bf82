// The packs that are shipped: whole, with sound lines, and with twelve pictures that differ and fit their room.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <set>
#include <string>

#include "packs/pack_values.h"

namespace {

std::string Read(const std::string& name) {
  const std::string path = std::string(PACKS_FOLDER) + "/" + name;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (file == nullptr) return {};
  std::string bytes;
  char part[65536];
  for (std::size_t size = 0; (size = std::fread(part, 1, sizeof part, file.get())) > 0;) bytes.append(part, size);
  return bytes;
}

struct Size {
  unsigned width = 0, height = 0;
};

/// The size in a JPEG's frame header.
Size Size_Of(const std::string& jpeg) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned>(static_cast<unsigned char>(jpeg[at])); };
  for (std::size_t at = 2; at + 8 < jpeg.size() && byte(at) == 0xFF; at += 2 + byte(at + 2) * 256 + byte(at + 3))
    if (byte(at + 1) >= 0xC0 && byte(at + 1) <= 0xC2)
      return {byte(at + 7) * 256 + byte(at + 8), byte(at + 5) * 256 + byte(at + 6)};
  return {};
}

const std::string names[] = {"Default", "Seasons"};

}  // namespace

TEST(Sample_Packs_Test, Seasons_has_the_lines_of_its_description) {
  EXPECT_EQ(
      Read("Seasons/settings.ini"),
      "1=1-0-2\r\n2=1-0-2\r\n3=0-5-2\r\n4=0-5-2\r\n5=0-1-1\r\n6=0-1-1\r\n7=1-6-0\r\n8=1-6-0\r\n9=2-9-2\r\n10=2-8-2\r\n"
      "11=1-3-2\r\n12=1-4-2\r\n");
}

TEST(Sample_Packs_Test, Every_month_has_a_value_of_three_numbers_with_a_meaning) {
  const std::set<int> positions = {0, 1, 2, 3, 4, 5, 6, 8, 9};
  for (const std::string& name : names) {
    const std::string lines = Read(name + "/settings.ini");
    for (int month = 1; month <= 12; ++month) {
      const std::string value = packs::Find_Month_Value(lines, month);
      EXPECT_LE(packs::Get_Paper_BoxStyle(value), 2);
      EXPECT_TRUE(positions.contains(packs::Get_Paper_Pos(value).Value()));
      EXPECT_LE(packs::Get_Paper_DisplayMode(value), 2);
    }
  }
}

TEST(Sample_Packs_Test, Twelve_pictures_each_that_differ_and_fill_a_screen) {
  std::set<std::string> pictures;
  std::size_t bytes = 0;
  for (const std::string& name : names) {
    for (int month = 1; month <= 12; ++month) {
      const std::string picture = Read(name + "/" + std::to_string(month) + ".jpg");
      ASSERT_TRUE(picture.starts_with("\xFF\xD8") && picture.ends_with("\xFF\xD9")) << name << " " << month;
      const Size size = Size_Of(picture);
      EXPECT_GE(size.width, 1280U) << name << " " << month;
      EXPECT_GE(size.height, 1024U) << name << " " << month;
      bytes += picture.size();
      pictures.insert(picture);
    }
  }
  EXPECT_EQ(pictures.size(), 24U);
  EXPECT_LT(bytes, 4'000'000U);
}
