// A function of the test's own for one of the system's.
#pragma once

#include <array>
#include <cstring>

#include "win32/windows_api.h"

/// In place of one of the system's functions as long as it lives: every call of it comes here.
class Detour {
 public:
  Detour(const char* library, const char* function, const void* to)
      : code_(reinterpret_cast<unsigned char*>(GetProcAddress(LoadLibraryA(library), function))) {
    std::memcpy(before_.data(), code_, before_.size());
#ifdef _WIN64
    std::array<unsigned char, 12> jump{0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0};  // mov rax, to; jmp rax
    std::memcpy(&jump[2], &to, sizeof to);
#else
    std::array<unsigned char, 12> jump{0xB8, 0, 0, 0, 0, 0xFF, 0xE0};  // mov eax, to; jmp eax
    std::memcpy(&jump[1], &to, sizeof to);
#endif
    Write(jump);
  }
  Detour(const Detour&) = delete;
  Detour& operator=(const Detour&) = delete;
  ~Detour() { Write(before_); }

 private:
  void Write(const std::array<unsigned char, 12>& bytes) {
    DWORD protection = 0;
    VirtualProtect(code_, bytes.size(), PAGE_EXECUTE_READWRITE, &protection);
    std::memcpy(code_, bytes.data(), bytes.size());
    VirtualProtect(code_, bytes.size(), protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), code_, bytes.size());
  }

  unsigned char* const code_;
  std::array<unsigned char, 12> before_{};
};
