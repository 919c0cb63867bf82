#include "bench/counting_new.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::int64_t> made{0};
std::atomic<std::int64_t> given_back{0};

}  // namespace

namespace bench {

Allocations Count_Allocations() { return {made, made - given_back}; }

}  // namespace bench

// The other forms of the two end in these.
void* operator new(std::size_t size) {
  made.fetch_add(1, std::memory_order_relaxed);
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr) given_back.fetch_add(1, std::memory_order_relaxed);
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
