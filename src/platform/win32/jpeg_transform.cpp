#include "platform/win32/jpeg_transform.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform::win32::jpeg {

namespace {

struct Grid {
  float At[8][8];
};

/// The inverse cosine transform along the columns, all eight of them side by side, by the flow graph of Arai, Agui and
/// Nakajima: five multiplications a column, the rest of them being in the factors.
void Transform_Columns(Grid& grid) {
  constexpr float root_2 = 1.414213562F, c2 = 1.847759065F, c2_less_c6 = 1.082392200F, c2_and_c6 = 2.613125930F;
  auto& at = grid.At;
  for (int i = 0; i < 8; ++i) {
    const float sum04 = at[0][i] + at[4][i], difference04 = at[0][i] - at[4][i];
    const float sum26 = at[2][i] + at[6][i];
    const float turned26 = (at[2][i] - at[6][i]) * root_2 - sum26;
    const float even0 = sum04 + sum26, even3 = sum04 - sum26;
    const float even1 = difference04 + turned26, even2 = difference04 - turned26;

    const float sum53 = at[5][i] + at[3][i], difference53 = at[5][i] - at[3][i];
    const float sum17 = at[1][i] + at[7][i], difference17 = at[1][i] - at[7][i];
    const float turned = (difference53 + difference17) * c2;
    const float odd0 = sum17 + sum53;
    const float odd1 = turned - difference53 * c2_and_c6 - odd0;
    const float odd2 = (sum17 - sum53) * root_2 - odd1;
    const float odd3 = turned - difference17 * c2_less_c6 - odd2;

    at[0][i] = even0 + odd0;
    at[7][i] = even0 - odd0;
    at[1][i] = even1 + odd1;
    at[6][i] = even1 - odd1;
    at[2][i] = even2 + odd2;
    at[5][i] = even2 - odd2;
    at[3][i] = even3 + odd3;
    at[4][i] = even3 - odd3;
  }
}

void Turn(Grid& grid) {
  for (int row = 0; row < 8; ++row)
    for (int column = row + 1; column < 8; ++column) std::swap(grid.At[row][column], grid.At[column][row]);
}

constexpr float middle_and_rounding = 128.5F;

}  // namespace

Factors Factors_Of(const Quantisation& steps) {
  std::array<double, 8> scale{};
  for (std::size_t i = 0; i < 8; ++i)
    scale[i] = i == 0 ? 1 : std::cos(static_cast<double>(i) * std::numbers::pi / 16) * std::numbers::sqrt2;
  Factors factors{};
  for (std::size_t i = 0; i < 64; ++i) factors[i] = static_cast<float>(steps[i] * scale[i / 8] * scale[i % 8] / 8);
  return factors;
}

void Transform(const Block& block, const Factors& factors, std::uint8_t* to, std::size_t pitch) {
  Grid grid;
  float* const all = &grid.At[0][0];
  for (std::size_t i = 0; i < 64; ++i) all[i] = static_cast<float>(block[i]) * factors[i];
  // The block comes turned, so that it needs to be turned but once.
  Transform_Columns(grid);
  Turn(grid);
  Transform_Columns(grid);
  for (std::size_t row = 0; row < 8; ++row, to += pitch)
    for (std::size_t i = 0; i < 8; ++i) {
      float value = grid.At[row][i] + middle_and_rounding;
      value = value > 0 ? value : 0;
      value = value < 255 ? value : 255;
      to[i] = static_cast<std::uint8_t>(static_cast<int>(value));
    }
}

void Transform_Flat(int first, const Factors& factors, std::uint8_t* to, std::size_t pitch) {
  const float value = static_cast<float>(first) * factors[0] + middle_and_rounding;
  const auto sample = static_cast<std::uint8_t>(std::clamp(value, 0.0F, 255.0F));
  for (int row = 0; row < 8; ++row, to += pitch) std::fill_n(to, 8, sample);
}

}  // namespace platform::win32::jpeg
