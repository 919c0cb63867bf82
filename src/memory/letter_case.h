// Upper case in code page 1252: names of files, keys and windows are the same if they are the same in upper case.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace memory {

constexpr char Fold_Letter(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  const bool plain = code >= 'a' && code <= 'z';
  const bool accented = code >= 0xE0 && code <= 0xFE && code != 0xF7;
  if (plain || accented) return static_cast<char>(code - 0x20);
  const bool caron = code == 0x9A || code == 0x9C || code == 0x9E;
  if (caron) return static_cast<char>(code - 0x10);
  return code == 0xFF ? static_cast<char>(0x9F) : letter;
}

inline std::string Folded(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Fold_Letter);
  return result;
}

inline bool Same_Name(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Fold_Letter, Fold_Letter);
}

}  // namespace memory
