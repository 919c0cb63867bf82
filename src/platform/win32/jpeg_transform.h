// The way back from the coefficients of a block of 8 by 8 samples to the samples.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace platform::win32::jpeg {

using Block = std::array<std::int16_t, 64>;          ///< coefficients, column by column
using Quantisation = std::array<std::uint16_t, 64>;  ///< the same order

/// Where a coefficient of the file's order stands in the block; behind the last there is room for a damaged picture's.
inline constexpr std::array<std::uint8_t, 64 + 16> place_in_block = {
    0,  8,  1,  2,  9,  16, 24, 17, 10, 3,  4,  11, 18, 25, 32, 40, 33, 26, 19, 12, 5,  6,  13, 20, 27, 34, 41,
    48, 56, 49, 42, 35, 28, 21, 14, 7,  15, 22, 29, 36, 43, 50, 57, 58, 51, 44, 37, 30, 23, 31, 38, 45, 52, 59,
    60, 53, 46, 39, 47, 54, 61, 62, 55, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63, 63};

/// What each coefficient is multiplied with: its step, and the scale that the fast transform leaves to it.
using Factors = std::array<float, 64>;
Factors Factors_Of(const Quantisation& steps);

/// Writes the samples, 0 to 255, to eight rows that lie `pitch` bytes apart.
void Transform(const Block& block, const Factors& factors, std::uint8_t* to, std::size_t pitch);

/// The same for a block that has nothing but its first coefficient.
void Transform_Flat(int first, const Factors& factors, std::uint8_t* to, std::size_t pitch);

}  // namespace platform::win32::jpeg
