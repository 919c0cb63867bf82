#include "basic/find_byte.h"

#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace basic {

#ifdef __SSE2__

const char* Find_Byte(const char* at, const char* end, char wanted) {
  const __m128i sample = _mm_set1_epi8(wanted);
  for (; end - at >= 16; at += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const auto hits = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, sample)));
    if (hits != 0) return at + std::countr_zero(hits);
  }
  while (at != end && *at != wanted) ++at;
  return at;
}

#else

const char* Find_Byte(const char* at, const char* end, char wanted) {
  const void* const hit = at == end ? nullptr : std::memchr(at, wanted, static_cast<std::size_t>(end - at));
  return hit == nullptr ? end : static_cast<const char*>(hit);
}

#endif

}  // namespace basic
