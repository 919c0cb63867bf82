#include "memory/memory_pictures.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

#include "basic/convert.h"

namespace memory {

namespace {

constexpr std::string_view start_mark = "\xFF\xD8";
constexpr std::string_view comment_mark = "\xFF\xFE";
constexpr std::string_view end_mark = "\xFF\xD9";
constexpr std::string_view comment_head = "plain picture ";
constexpr int longest_side = 65500;
constexpr int most_pixels = 100'000'000;
constexpr std::size_t bitmap_head_size = 54;
constexpr std::size_t width_at = 18, height_at = 22, depth_at = 26;  // where a bitmap's head holds them
constexpr int one_plane_of_24_bits = 1 | 24 << 16;

/// Cuts known bytes off the front; throws error 481 if they aren't there.
void Expect(std::string_view& bytes, std::string_view piece) {
  if (!bytes.starts_with(piece)) throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
  bytes.remove_prefix(piece.size());
}

/// Cuts a number and the blank after it off the front and returns the number. Throws error 481 if there is no such
/// number from `least` to `most`.
int Expect_Number(std::string_view& bytes, int least, int most) {
  int number = 0;
  const auto [end, failure] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
  const bool in_range = failure == std::errc() && number >= least && number <= most;
  if (!in_range) throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
  bytes.remove_prefix(static_cast<std::size_t>(end - bytes.data()));
  Expect(bytes, " ");
  return number;
}

std::string Comment_Of(const Plain_Picture& picture) {
  std::string comment(comment_head);
  for (const std::int32_t number : {picture.Width, picture.Height, picture.Red, picture.Green, picture.Blue})
    comment += basic::To_Text(number) + " ";
  return comment;
}

/// A number in two bytes, the high one first, as in a JPEG the sizes of its segments.
std::string Two_Bytes(std::size_t number) { return {static_cast<char>(number >> 8), static_cast<char>(number)}; }

Plain_Picture Read_Jpeg(std::string_view bytes) {
  Expect(bytes, start_mark);
  Expect(bytes, comment_mark);
  bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 2));
  Expect(bytes, comment_head);
  Plain_Picture picture;
  picture.Width = Expect_Number(bytes, 1, longest_side);
  picture.Height = Expect_Number(bytes, 1, longest_side);
  for (int* const colour : {&picture.Red, &picture.Green, &picture.Blue}) *colour = Expect_Number(bytes, 0, 255);
  Expect(bytes, end_mark);
  if (std::int64_t{picture.Width} * picture.Height > most_pixels)
    throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
  return picture;
}

/// Appends a number in four bytes, the lowest first.
void Append_Dword(std::string& to, std::size_t number) {
  for (int shift = 0; shift < 32; shift += 8) to += static_cast<char>(number >> shift);
}

std::string Bitmap_Head(const Plain_Picture& picture, std::size_t pixel_bytes) {
  std::string head = "BM";
  Append_Dword(head, bitmap_head_size + pixel_bytes);
  Append_Dword(head, 0);
  Append_Dword(head, bitmap_head_size);
  Append_Dword(head, 40);  // the size of what follows
  Append_Dword(head, static_cast<std::size_t>(picture.Width));
  Append_Dword(head, static_cast<std::size_t>(picture.Height));
  Append_Dword(head, one_plane_of_24_bits);
  Append_Dword(head, 0);  // not compressed
  Append_Dword(head, pixel_bytes);
  head.resize(bitmap_head_size, '\0');
  return head;
}

std::string Bitmap_Row(const Plain_Picture& picture) {
  const char pixel[] = {static_cast<char>(picture.Blue), static_cast<char>(picture.Green),
                        static_cast<char>(picture.Red)};
  std::string row;
  for (int x = 0; x < picture.Width; ++x) row.append(pixel, sizeof pixel);
  while (row.size() % 4 != 0) row += '\0';
  return row;
}

void Write_All(basic::Output_File& file, const std::string& bytes) {
  if (file.Write(bytes) < bytes.size()) throw basic::Run_Error(basic::Error_Number::Disk_Full);
}

class One_Colour final : public platform::Picture {
 public:
  explicit One_Colour(const Plain_Picture& plain) : plain_(plain) {}

  [[nodiscard]] int Width() const override { return plain_.Width; }
  [[nodiscard]] int Height() const override { return plain_.Height; }
  [[nodiscard]] int Pixel(int x, int y) const override {
    if (x < 0 || x >= plain_.Width || y < 0 || y >= plain_.Height) return platform::no_pixel;
    return plain_.Red | plain_.Green << 8 | plain_.Blue << 16;
  }

 private:
  const Plain_Picture plain_;
};

class Pixel_Picture final : public platform::Picture {
 public:
  Pixel_Picture(int width, int height, const std::function<int(int x, int y)>& pixel) : width_(width), height_(height) {
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) pixels_.push_back(pixel(x, y));
  }

  [[nodiscard]] int Width() const override { return width_; }
  [[nodiscard]] int Height() const override { return height_; }
  [[nodiscard]] int Pixel(int x, int y) const override {
    if (x < 0 || x >= width_ || y < 0 || y >= height_) return platform::no_pixel;
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
  }

 private:
  const int width_, height_;
  std::vector<int> pixels_;
};

/// A number of four bytes, the lowest first. Throws error 481 where the bytes end.
int Dword_At(std::string_view bytes, std::size_t at) {
  if (at + 4 > bytes.size()) throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  return static_cast<int>(number);
}

Plain_Picture Read_Bitmap(std::string_view bytes) {
  const auto byte = [&](std::size_t at) { return static_cast<int>(static_cast<unsigned char>(bytes[at])); };
  const Plain_Picture picture{Dword_At(bytes, width_at), Dword_At(bytes, height_at), 0, 0, 0};
  const bool plain = Dword_At(bytes, depth_at) == one_plane_of_24_bits && bytes.size() > bitmap_head_size + 2;
  if (!plain || picture.Width < 1 || picture.Height < 1) throw basic::Run_Error(basic::Error_Number::Invalid_Picture);
  return {picture.Width, picture.Height, byte(bitmap_head_size + 2), byte(bitmap_head_size + 1),
          byte(bitmap_head_size)};
}

}  // namespace

std::string Jpeg_Of(const Plain_Picture& picture) {
  const std::string comment = Comment_Of(picture);
  return std::string(start_mark) + std::string(comment_mark) + Two_Bytes(comment.size() + 2) + comment +
         std::string(end_mark);
}

void Memory_Pictures::Convert_To_Bitmap(const std::string& jpeg, const std::string& bitmap) {
  std::string bytes;
  files_.Read_Whole(jpeg, bytes);
  const Plain_Picture picture = Read_Jpeg(bytes);
  try {
    Write_Bitmap(picture, bitmap);
  } catch (const basic::Run_Error& error) {
    if (error.Number() == static_cast<int>(basic::Error_Number::Disk_Full)) files_.Delete(bitmap);
    throw;
  }
}

/// What can't be read for whatever reason is no more than that to the caller.
std::string Memory_Pictures::Read_Picture(const std::string& path) const {
  if (!files_.Folder_Exists(path)) throw basic::Run_Error(basic::Error_Number::File_Not_Found);
  if (!files_.File_Exists(path)) throw basic::Run_Error(basic::Error_Number::Path_File_Access);
  std::string bytes;
  files_.Read_Whole(path, bytes);
  return bytes;
}

platform::Shared_Picture Memory_Pictures::Load(const std::string& path) {
  const std::string bytes = Read_Picture(path);
  return std::make_shared<One_Colour>(bytes.starts_with("BM") ? Read_Bitmap(bytes) : Read_Jpeg(bytes));
}

platform::Shared_Picture Memory_Pictures::Make(int width, int height, const std::function<int(int x, int y)>& pixel) {
  return std::make_shared<Pixel_Picture>(width, height, pixel);
}

void Memory_Pictures::Write_Bitmap(const Plain_Picture& picture, const std::string& path) {
  const std::string row = Bitmap_Row(picture);
  const auto rows = static_cast<std::size_t>(picture.Height);
  const auto file = files_.Create(path);
  Write_All(*file, Bitmap_Head(picture, row.size() * rows));
  for (std::size_t y = 0; y < rows; ++y) Write_All(*file, row);
}

}  // namespace memory
