#include "platform/win32/jpeg_scan.h"

namespace platform::win32::jpeg {

namespace {

class Scan_Reader {
 public:
  Scan_Reader(Scan& scan, const std::uint8_t* at, const std::uint8_t* end) : scan_(scan), bits_(at, end), end_(end) {}

  const std::uint8_t* Read() {
    // A scan of one part has its own blocks alone, row by row; one of several goes by the picture's units.
    const bool single = scan_.Parts.size() == 1;
    const Component& first = *scan_.Parts.front().Of;
    const std::size_t across = single ? first.Own_Across : scan_.Units_Across;
    const std::size_t down = single ? first.Own_Down : scan_.Units_Down;
    unsigned until_restart = scan_.Restart_Interval;
    for (std::size_t y = 0; y < down; ++y) {
      for (std::size_t x = 0; x < across; ++x) {
        if (scan_.Restart_Interval != 0 && until_restart-- == 0) {
          Restart();
          until_restart = scan_.Restart_Interval - 1;
        }
        if (single) Read_Block(scan_.Parts.front(), x, y);
        else Read_Unit(x, y);
      }
      if (bits_.Overrun()) Refuse();
    }
    return bits_.Marker();
  }

 private:
  void Read_Unit(std::size_t x, std::size_t y) {
    for (Scan_Part& part : scan_.Parts)
      for (unsigned row = 0; row < part.Of->Down; ++row)
        for (unsigned column = 0; column < part.Of->Across; ++column)
          Read_Block(part, x * part.Of->Across + column, y * part.Of->Down + row);
  }

  void Read_Block(Scan_Part& part, std::size_t x, std::size_t y) {
    Component& component = *part.Of;
    if (!scan_.Progressive) {
      Block block{};
      const bool flat = Read_Sequential(part, block);
      std::uint8_t* const to = component.Samples.Samples.data() + (y * component.Samples.Pitch + x) * 8;
      if (flat) Transform_Flat(block[0], component.Steps, to, component.Samples.Pitch);
      else Transform(block, component.Steps, to, component.Samples.Pitch);
      return;
    }
    Block& block = component.Blocks[y * component.Blocks_Across + x];
    if (scan_.From == 0) Read_First(part, block);
    else if (scan_.High == 0) Read_Rest(*part.Rest, block);
    else Refine_Rest(*part.Rest, block);
  }

  int Next_First(Scan_Part& part) {
    const unsigned size = part.First->Decode(bits_);
    if (size > 15) Refuse();
    // Kept to 16 bits, whatever a damaged picture adds up to.
    return part.Predicted = static_cast<std::int16_t>(part.Predicted + bits_.Take_Signed(size));
  }

  /// Says whether the block has nothing but its first coefficient.
  bool Read_Sequential(Scan_Part& part, Block& block) {
    block[0] = static_cast<std::int16_t>(Next_First(part));
    bool flat = true;
    for (unsigned k = 1; k < 64; ++k) {
      const unsigned code = part.Rest->Decode(bits_), run = code >> 4, size = code & 15;
      if (size == 0 && run < 15) break;
      k += run;
      if (size == 0) continue;
      block[place_in_block[k]] = static_cast<std::int16_t>(bits_.Take_Signed(size));
      flat = false;
    }
    return flat;
  }

  void Read_First(Scan_Part& part, Block& block) {
    if (scan_.High != 0) {
      block[0] = static_cast<std::int16_t>(block[0] | static_cast<int>(bits_.Take(1) << scan_.Low));
      return;
    }
    block[0] = static_cast<std::int16_t>(Next_First(part) * (1 << scan_.Low));
  }

  void Read_Rest(const Huffman_Table& table, Block& block) {
    if (empty_blocks_ > 0) {
      --empty_blocks_;
      return;
    }
    for (unsigned k = scan_.From; k <= scan_.To; ++k) {
      const unsigned code = table.Decode(bits_), run = code >> 4, size = code & 15;
      if (size == 0 && run < 15) {
        empty_blocks_ = (1U << run) + bits_.Take(run) - 1;
        return;
      }
      k += run;
      if (size != 0) block[place_in_block[k]] = static_cast<std::int16_t>(bits_.Take_Signed(size) * (1 << scan_.Low));
    }
  }

  /// One bit more of the coefficients that are there already, and between them those that only now become other than 0.
  void Refine_Rest(const Huffman_Table& table, Block& block) {
    const int bit = 1 << scan_.Low;
    unsigned k = scan_.From;
    while (empty_blocks_ == 0 && k <= scan_.To) {
      const unsigned code = table.Decode(bits_), run = code >> 4, size = code & 15;
      if (size == 0 && run < 15) {
        empty_blocks_ = (1U << run) + bits_.Take(run);
        break;
      }
      const int fresh = size == 0 ? 0 : (bits_.Take(1) != 0 ? bit : -bit);
      k = Refine_Until(block, k, run, bit);
      if (fresh != 0 && k <= scan_.To) block[place_in_block[k]] = static_cast<std::int16_t>(fresh);
      ++k;
    }
    if (empty_blocks_ == 0) return;
    Refine_Until(block, k, 64, bit);
    --empty_blocks_;
  }

  /// Refines what is there from k on, passes that many zeros, and stops at the zero behind them.
  unsigned Refine_Until(Block& block, unsigned k, unsigned zeros, int bit) {
    for (; k <= scan_.To; ++k) {
      std::int16_t& coefficient = block[place_in_block[k]];
      if (coefficient == 0) {
        if (zeros-- == 0) break;
      } else if (bits_.Take(1) != 0 && (coefficient & bit) == 0) {
        coefficient = static_cast<std::int16_t>(coefficient + (coefficient > 0 ? bit : -bit));
      }
    }
    return k;
  }

  void Restart() {
    if (bits_.Overrun()) Refuse();
    const std::uint8_t* at = bits_.Marker();
    if (end_ - at < 2 || at[1] < 0xD0 || at[1] > 0xD7) Refuse();
    bits_ = Bit_Reader(at + 2, end_);
    for (Scan_Part& part : scan_.Parts) part.Predicted = 0;
    empty_blocks_ = 0;
  }

  Scan& scan_;
  Bit_Reader bits_;
  const std::uint8_t* end_;
  unsigned empty_blocks_ = 0;  // the blocks from here on that have nothing more in this scan
};

}  // namespace

const std::uint8_t* Read_Scan(Scan& scan, const std::uint8_t* at, const std::uint8_t* end) {
  return Scan_Reader(scan, at, end).Read();
}

}  // namespace platform::win32::jpeg
