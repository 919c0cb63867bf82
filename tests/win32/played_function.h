// A function of a library that does what a test wants.
#pragma once

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstring>

/// Has a function of the system's do something else for as long as it lives.
class Played_Function {
 public:
  template <class Function>
  Played_Function(HMODULE library, const char* name, Function* instead)
      : code_(reinterpret_cast<unsigned char*>(GetProcAddress(library, name))) {
    std::copy_n(code_, before_.size(), before_.begin());
    // mov rax, address; jmp rax
    std::array<unsigned char, 12> jump{0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0};
    std::memcpy(&jump[2], &instead, sizeof instead);
    Put(jump);
  }
  Played_Function(const Played_Function&) = delete;
  Played_Function& operator=(const Played_Function&) = delete;
  ~Played_Function() { Put(before_); }

 private:
  void Put(const std::array<unsigned char, 12>& bytes) {
    DWORD protection = 0;
    VirtualProtect(code_, bytes.size(), PAGE_EXECUTE_READWRITE, &protection);
    std::copy(bytes.begin(), bytes.end(), code_);
    VirtualProtect(code_, bytes.size(), protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), code_, bytes.size());
  }

  unsigned char* code_;
  std::array<unsigned char, 12> before_{};
};
