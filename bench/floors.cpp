#include "bench/floors.h"

#include <emmintrin.h>

#include <bit>
#include <cstring>
#include <memory>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace bench {

namespace {

/// Opens the file, asks `room` for a place of its size, reads it there by one call and gives the size.
template <class Room>
std::size_t Read_File(const std::string& path, Room room) {
#ifdef _WIN32
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("no " + path);
  const DWORD size = GetFileSize(file, nullptr);
  DWORD got = 0;
  const bool whole = ReadFile(file, room(size), size, &got, nullptr) != 0 && got == size;
  CloseHandle(file);
#else
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) throw std::runtime_error("no " + path);
  struct stat about {};
  fstat(file, &about);
  const auto size = static_cast<std::size_t>(about.st_size);
  const bool whole = read(file, room(size), size) == about.st_size;
  close(file);
#endif
  if (!whole) throw std::runtime_error("not the whole of " + path);
  return size;
}

std::size_t Quotes_By_Memchr(const char* at, const char* end) {
  std::size_t count = 0;
  while (at != end) {
    const void* const quote = std::memchr(at, '"', static_cast<std::size_t>(end - at));
    if (quote == nullptr) break;
    ++count;
    at = static_cast<const char*>(quote) + 1;
  }
  return count;
}

std::size_t Quotes_By_Sse2(const char* at, const char* end) {
  std::size_t count = 0;
  const __m128i quote = _mm_set1_epi8('"');
  for (; end - at >= 16; at += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    count +=
        static_cast<std::size_t>(std::popcount(static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, quote)))));
  }
  for (; at != end; ++at) count += *at == '"' ? 1 : 0;
  return count;
}

}  // namespace

std::size_t Fresh_Buffer_And_Memchr(const std::string& path) {
  std::unique_ptr<char[]> buffer;
  const std::size_t size = Read_File(path, [&](std::size_t wanted) {
    buffer = std::make_unique_for_overwrite<char[]>(wanted);
    return buffer.get();
  });
  return Quotes_By_Memchr(buffer.get(), buffer.get() + size);
}

std::size_t Kept_Buffer_And_Sse2(const std::string& path, std::vector<char>& buffer) {
  Read_File(path, [&](std::size_t wanted) {
    buffer.resize(wanted);
    return buffer.data();
  });
  return Quotes_By_Sse2(buffer.data(), buffer.data() + buffer.size());
}

}  // namespace bench
