// A program that links counting_new.cpp counts its allocations.
#pragma once

#include <cstdint>

namespace bench {

struct Allocations {
  std::int64_t Made = 0;        ///< since the start of the program
  std::int64_t Live_Bytes = 0;  ///< of those made and not yet given back
};

Allocations Count_Allocations();

}  // namespace bench
