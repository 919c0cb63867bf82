// What the compiler's guard of the stack calls for: the value behind the locals of a function, and the end of the
// program where something has written over it. With these the run-time library's own ones aren't linked, which would
// ask the system's cryptography for the value at each start.
#include <initializer_list>

#include "win32/windows_api.h"

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

/// Nothing can be relied on here: not even a box.
[[noreturn]] void __stack_chk_fail() {
  constexpr UINT overrun = 0xC0000409;  // STATUS_STACK_BUFFER_OVERRUN
  TerminateProcess(GetCurrentProcess(), overrun);
  for (;;) continue;
}

}  // extern "C"

namespace {

/// Another number at each start: of the clocks, of the process, and of the places where the system has laid program and
/// stack. Runs before everything that is guarded.
__attribute__((constructor(101), no_stack_protector)) void Choose_Guard() {
  LARGE_INTEGER counter = {};
  QueryPerformanceCounter(&counter);
  SYSTEMTIME time;
  GetSystemTime(&time);
  constexpr std::uint64_t prime = 1099511628211;
  std::uint64_t mixed = 14695981039346656037U;
  for (const std::uint64_t part :
       {static_cast<std::uint64_t>(counter.QuadPart), std::uint64_t{GetTickCount()}, std::uint64_t{time.wMilliseconds},
        std::uint64_t{GetCurrentProcessId()}, std::uint64_t{reinterpret_cast<std::uintptr_t>(&counter)},
        std::uint64_t{reinterpret_cast<std::uintptr_t>(&Choose_Guard)}})
    mixed = ((mixed ^ part) * prime) ^ (mixed >> 29);
  // A text that is copied past its end stops at the zero.
  __stack_chk_guard = static_cast<std::uintptr_t>(mixed) & ~std::uintptr_t{0xFF};
}

}  // namespace
