// Decodes JPEG pictures: sequential and progressive ones of 8 bits a sample, grey or coloured.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace platform::win32::jpeg {

struct Reading;

class Decoder {
 public:
  /// Reads the picture's headers; the bytes must live as long as the decoder. Throws error 481 if they are no JPEG
  /// picture of these kinds, or one of more than 64 million pixels.
  explicit Decoder(std::string_view file);
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder();

  /// In pixels.
  [[nodiscard]] std::size_t Width() const;
  [[nodiscard]] std::size_t Height() const;

  /// Writes the rows from the bottom up, each `pitch` bytes behind the one before, three bytes a pixel, blue first.
  /// Throws error 481 if the picture is damaged or cut off.
  void Decode(std::uint8_t* rows, std::size_t pitch);

 private:
  std::unique_ptr<Reading> reading_;
};

}  // namespace platform::win32::jpeg
