// Colours as the settings hold them.
#pragma once

namespace toolkit {

/// 0 or more: red in the low byte, green in the next, blue in the third. Negative (the top bit set): the system colour
/// that the low byte names.
using Colour = int;

constexpr Colour black = 0;
constexpr Colour white = 0xFFFFFF;

constexpr bool Is_System_Colour(Colour colour) { return colour < 0; }
constexpr int System_Colour_Number(Colour colour) { return colour & 0xFF; }
constexpr Colour System_Colour(int number) { return static_cast<Colour>(0x80000000U | static_cast<unsigned>(number)); }

constexpr Colour Rgb(int red, int green, int blue) { return red | green << 8 | blue << 16; }

}  // namespace toolkit
