#include "toolkit/item_order.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>

namespace toolkit {

namespace {

/// The plain capitals of the letters from 0xC0 on; a blank for what is no letter.
constexpr std::string_view plain_letters = "AAAAAAACEEEEIIIIDNOOOOO OUUUUYTSAAAAAAACEEEEIIIIDNOOOOO OUUUUYTY";

/// The plain capital of a letter, 0 for any other character.
constexpr unsigned char Plain_Letter(unsigned char c) {
  if (c >= 'A' && c <= 'Z') return c;
  if (c >= 'a' && c <= 'z') return static_cast<unsigned char>(c - 'a' + 'A');
  switch (c) {
    case 0x8A:
    case 0x9A: return 'S';
    case 0x8C:
    case 0x9C: return 'O';
    case 0x8E:
    case 0x9E: return 'Z';
    case 0x9F: return 'Y';
    default: break;
  }
  if (c < 0xC0 || plain_letters[c - 0xC0U] == ' ') return 0;
  return static_cast<unsigned char>(plain_letters[c - 0xC0U]);
}

constexpr bool Is_Digit(unsigned char c) { return c >= '0' && c <= '9'; }

/// The place of each character: signs, digits, letters, each in the order of their codes.
constexpr std::array<unsigned short, 256> places = [] {
  std::array<unsigned short, 256> all{};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const auto c = static_cast<unsigned char>(i);
    if (const unsigned char letter = Plain_Letter(c)) all[i] = static_cast<unsigned short>(0x200 + letter);
    else all[i] = static_cast<unsigned short>((Is_Digit(c) ? 0x100 : 0) + c);
  }
  return all;
}();

/// The same letter as a capital, for the accents: in this code page most of the small letters lie 32 above.
constexpr unsigned char Capital(unsigned char c) {
  if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<unsigned char>(c - 0x10);
  if (c == 0xFF) return 0x9F;
  if (c >= 0xE0 && c != 0xF7) return static_cast<unsigned char>(c - 0x20);
  return c >= 'a' && c <= 'z' ? static_cast<unsigned char>(c - 0x20) : c;
}

unsigned short Place(char c) { return places[static_cast<unsigned char>(c)]; }

}  // namespace

bool Sorts_Before(std::string_view a, std::string_view b) {
  const auto order = std::lexicographical_compare_three_way(a.begin(), a.end(), b.begin(), b.end(),
                                                            [](char x, char y) { return Place(x) <=> Place(y); });
  if (std::is_neq(order)) return std::is_lt(order);
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return Capital(static_cast<unsigned char>(x)) < Capital(static_cast<unsigned char>(y));
  });
}

}  // namespace toolkit
