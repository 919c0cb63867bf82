// The entropy-coded bytes of a JPEG picture, bit by bit, and the Huffman codes in them.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace platform::win32::jpeg {

/// What can't be decoded, for whatever reason: throws error 481.
[[noreturn]] void Refuse();

/// Reads bits, the highest of each byte first. Behind the end, or at a marker, it goes on with zeros; Overrun tells.
class Bit_Reader {
 public:
  Bit_Reader(const std::uint8_t* at, const std::uint8_t* end) : at_(at), end_(end) {}

  /// At least 32 bits can be taken after this.
  void Fill() {
    if (count_ < 32) Fill_More();
  }
  [[nodiscard]] unsigned Peek(unsigned bits) const { return static_cast<unsigned>(bits_ >> (64 - bits)); }
  void Drop(unsigned bits) {
    bits_ <<= bits;
    count_ -= bits;
  }

  /// The number of that many bits (0 to 16).
  unsigned Take(unsigned bits) {
    if (bits == 0) return 0;
    Fill();
    const unsigned value = Peek(bits);
    Drop(bits);
    return value;
  }

  /// The value of a coefficient of that many bits: the smaller half of the numbers stands for the negative values.
  int Take_Signed(unsigned bits) {
    if (bits == 0) return 0;
    const int value = static_cast<int>(Take(bits));
    return value < 1 << (bits - 1) ? value - (1 << bits) + 1 : value;
  }

  /// Whether bits were taken that aren't there.
  [[nodiscard]] bool Overrun() const { return count_ < made_up_; }

  /// Where the bytes go on: behind the last whole byte that was taken, or at the marker that ended them.
  [[nodiscard]] const std::uint8_t* Marker() const;

 private:
  void Fill_More();

  const std::uint8_t* at_;
  const std::uint8_t* end_;
  std::uint64_t bits_ = 0;  // the next bit is the highest
  unsigned count_ = 0;
  unsigned made_up_ = 0;  // how many of them are the zeros behind the end
};

class Huffman_Table {
 public:
  /// From the numbers of codes of 1 to 16 bits, and the symbols in the order of the codes.
  void Build(std::span<const std::uint8_t, 16> counts, std::span<const std::uint8_t> symbols);

  unsigned Decode(Bit_Reader& bits) const {
    bits.Fill();
    const Short_Code code = short_codes_[bits.Peek(short_bits)];
    if (code.Length == 0) return Decode_Long(bits);
    bits.Drop(code.Length);
    return code.Symbol;
  }

 private:
  static constexpr unsigned short_bits = 9;
  struct Short_Code {
    std::uint8_t Length = 0, Symbol = 0;
  };

  unsigned Decode_Long(Bit_Reader& bits) const;

  std::array<Short_Code, 1U << short_bits> short_codes_{};
  std::array<std::uint32_t, 17> ends_{};  // by length: the first code of 16 bits that is longer
  std::array<int, 17> offsets_{};         // by length: from a code to the place of its symbol
  std::array<std::uint8_t, 256> symbols_{};
};

}  // namespace platform::win32::jpeg
