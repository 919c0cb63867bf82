#include "bench/counting_new.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::int64_t> made{0};
std::atomic<std::int64_t> live_bytes{0};

std::int64_t Size_Of(void* memory) { return static_cast<std::int64_t>(malloc_usable_size(memory)); }

}  // namespace

namespace bench {

Allocations Count_Allocations() { return {made, live_bytes}; }

}  // namespace bench

// The other forms of the two end in these.
void* operator new(std::size_t size) {
  made.fetch_add(1, std::memory_order_relaxed);
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  live_bytes.fetch_add(Size_Of(memory), std::memory_order_relaxed);
  return memory;
}

void operator delete(void* memory) noexcept {
  live_bytes.fetch_sub(Size_Of(memory), std::memory_order_relaxed);
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
