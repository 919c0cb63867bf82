// One scan of a JPEG picture: the coefficients of some of its parts, or some bits of them.
#pragma once

#include <vector>

#include "platform/win32/jpeg_bits.h"
#include "platform/win32/jpeg_colour.h"
#include "platform/win32/jpeg_transform.h"

namespace platform::win32::jpeg {

/// One of the parts that a picture is made of.
struct Component {
  unsigned Id = 0;
  unsigned Across = 1, Down = 1;  ///< its samples in the smallest unit of the picture, against the others'
  unsigned Quantisation_Number = 0;
  std::size_t Blocks_Across = 0, Blocks_Down = 0;  ///< with those that fill the last units up
  std::size_t Own_Across = 0, Own_Down = 0;        ///< without them
  Factors Steps{};
  bool Has_Steps = false;
  std::vector<Block> Blocks;  ///< of a progressive picture, until all its scans have been read
  Plane Samples;
};

struct Scan_Part {
  Component* Of = nullptr;
  const Huffman_Table* First = nullptr;  ///< the codes of the first coefficients, which stand for the mean
  const Huffman_Table* Rest = nullptr;   ///< the codes of the others
  int Predicted = 0;
};

struct Scan {
  std::vector<Scan_Part> Parts;
  bool Progressive = false;
  unsigned From = 0, To = 63;     ///< the coefficients it holds, in their order in the file
  unsigned High = 0, Low = 0;     ///< of a progressive one: the bit that was read before, and the one that is now
  unsigned Restart_Interval = 0;  ///< units between two restarts, 0 for none
  std::size_t Units_Across = 0, Units_Down = 0;
};

/// Reads the scan's coefficients from the bytes, and gives the place where the next marker is. Those of a sequential
/// picture become samples at once, those of a progressive one are kept.
const std::uint8_t* Read_Scan(Scan& scan, const std::uint8_t* at, const std::uint8_t* end);

}  // namespace platform::win32::jpeg
