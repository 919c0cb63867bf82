// What a reading of the event file costs at least: the bytes in memory and every double quote of them found. The goals of
// a month change are multiples of these.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// Reads the file into a buffer of its own, which isn't cleared first, and gives the number of its quotes by memchr.
std::size_t Fresh_Buffer_And_Memchr(const std::string& path);

/// Reads the file into a buffer that is kept, and gives the number of its quotes by comparing sixteen bytes at a time.
std::size_t Kept_Buffer_And_Sse2(const std::string& path, std::vector<char>& buffer);

}  // namespace bench
