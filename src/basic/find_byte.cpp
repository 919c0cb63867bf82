#include "basic/find_byte.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace basic {

#ifdef __SSE2__

namespace {

/// One bit for each of sixteen bytes, the first byte's lowest: set if the byte equals the sample's.
std::uint64_t Hits_In_16(const char* at, __m128i sample) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, sample)));
}

std::uint64_t Hits_In_64(const char* at, __m128i sample) {
  return Hits_In_16(at, sample) | Hits_In_16(at + 16, sample) << 16U | Hits_In_16(at + 32, sample) << 32U |
         Hits_In_16(at + 48, sample) << 48U;
}

}  // namespace

#endif

const char* Find_Byte(const char* at, const char* end, char wanted) {
#ifdef __SSE2__
  const __m128i sample = _mm_set1_epi8(wanted);
  for (; end - at >= 64; at += 64) {
    const std::uint64_t hits = Hits_In_64(at, sample);
    if (hits != 0) return at + std::countr_zero(hits);
  }
  for (; end - at >= 16; at += 16) {
    const std::uint64_t hits = Hits_In_16(at, sample);
    if (hits != 0) return at + std::countr_zero(hits);
  }
#endif
  return std::find(at, end, wanted);
}

}  // namespace basic
