#include "platform/win32/jpeg_bits.h"

#include <algorithm>

#include "basic/run_error.h"

namespace platform::win32::jpeg {

void Refuse() { throw basic::Run_Error(basic::Error_Number::Invalid_Picture); }

void Bit_Reader::Fill_More() {
  while (count_ <= 56) {
    std::uint64_t byte = 0;
    if (at_ < end_ && *at_ != 0xFF) {
      byte = *at_++;
    } else if (end_ - at_ >= 2 && at_[1] == 0) {
      byte = 0xFF;  // a byte of all ones is followed by a zero that doesn't count
      at_ += 2;
    } else {
      made_up_ += 8;
    }
    bits_ |= byte << (56 - count_);
    count_ += 8;
  }
}

const std::uint8_t* Bit_Reader::Marker() const {
  const std::uint8_t* at = at_;
  // Bytes that were read ahead hold no marker: those end the reading.
  while (end_ - at >= 2 && (at[0] != 0xFF || at[1] == 0)) ++at;
  return at;
}

void Huffman_Table::Build(std::span<const std::uint8_t, 16> counts, std::span<const std::uint8_t> symbols) {
  *this = Huffman_Table();
  std::copy(symbols.begin(), symbols.end(), symbols_.begin());
  unsigned code = 0, place = 0;
  for (unsigned length = 1; length <= 16; ++length) {
    offsets_[length] = static_cast<int>(place) - static_cast<int>(code);
    for (unsigned i = 0; i < counts[length - 1]; ++i, ++code, ++place) {
      if (code >= 1U << length) Refuse();
      if (length > short_bits) continue;
      const auto first = short_codes_.begin() + (code << (short_bits - length));
      std::fill_n(first, 1U << (short_bits - length), Short_Code{static_cast<std::uint8_t>(length), symbols_[place]});
    }
    ends_[length] = code << (16 - length);
    code <<= 1;
  }
}

unsigned Huffman_Table::Decode_Long(Bit_Reader& bits) const {
  const unsigned next = bits.Peek(16);
  for (unsigned length = short_bits + 1; length <= 16; ++length) {
    if (next >= ends_[length]) continue;
    bits.Drop(length);
    return symbols_[static_cast<unsigned>(static_cast<int>(next >> (16 - length)) + offsets_[length]) & 0xFF];
  }
  Refuse();
}

}  // namespace platform::win32::jpeg
