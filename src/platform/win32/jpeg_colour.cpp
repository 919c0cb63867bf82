#include "platform/win32/jpeg_colour.h"

#include <algorithm>

namespace platform::win32::jpeg {

namespace {

/// Three quarters of the nearer row and one of the farther, in quarters.
void Weigh_Rows(const std::uint8_t* near, const std::uint8_t* far, std::int16_t* sums, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) sums[i] = static_cast<std::int16_t>(3 * near[i] + far[i]);
}

/// Two pixels from each sum, each three quarters of it and one of its neighbour on that side.
void Stretch_Across(const std::int16_t* sums, std::uint8_t* to, std::size_t count) {
  const auto left = [=](std::size_t i, int before) {
    return static_cast<std::uint8_t>((3 * sums[i] + before + 8) >> 4);
  };
  const auto right = [=](std::size_t i, int behind) {
    return static_cast<std::uint8_t>((3 * sums[i] + behind + 7) >> 4);
  };
  to[0] = left(0, sums[0]);
  for (std::size_t i = 0; i + 1 < count; ++i) {
    to[2 * i + 1] = right(i, sums[i + 1]);
    to[2 * i + 2] = left(i + 1, sums[i]);
  }
  to[2 * count - 1] = right(count - 1, sums[count - 1]);
}

/// One pixel from each sum.
void Keep_Across(const std::int16_t* sums, int rounding, std::uint8_t* to, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) to[i] = static_cast<std::uint8_t>((sums[i] + rounding) >> 2);
}

// The colours are mixed in eighths, by products of 16 bits of which the upper half counts: the compiler makes one
// operation of eight of them.
std::int16_t Part(int difference, std::int16_t weight) {
  return static_cast<std::int16_t>((static_cast<std::int16_t>(difference * 128) * weight) >> 16);
}

std::uint8_t Sample(int eighths) {
  auto value = static_cast<std::int16_t>(eighths >> 3);
  value = value > 0 ? value : std::int16_t{0};
  value = value < 255 ? value : std::int16_t{255};
  return static_cast<std::uint8_t>(value);
}

/// The lightness and one colour difference make red or blue.
void Mix_One(const std::uint8_t* __restrict lightness, const std::uint8_t* __restrict difference, std::int16_t weight,
             std::uint8_t* __restrict to, std::size_t count) {
  for (std::size_t x = 0; x < count; ++x)
    to[x] = Sample(static_cast<std::int16_t>(lightness[x] * 8 + 4 + Part(difference[x] - 128, weight)));
}

void Mix_Green(const std::uint8_t* __restrict lightness, const std::uint8_t* __restrict blue,
               const std::uint8_t* __restrict red, std::uint8_t* __restrict to, std::size_t count) {
  constexpr std::int16_t blue_weight = 1410, red_weight = 2925;  // of 4096
  for (std::size_t x = 0; x < count; ++x)
    to[x] = Sample(static_cast<std::int16_t>(lightness[x] * 8 + 4 - Part(blue[x] - 128, blue_weight) -
                                             Part(red[x] - 128, red_weight)));
}

}  // namespace

Colour_Rows::Colour_Rows(const std::vector<Plane>& planes, std::size_t width, bool coded)
    : planes_(planes), width_(width), coded_(coded && planes.size() == 3) {
  std::size_t widest = width;
  for (const Plane& plane : planes) widest = std::max(widest, plane.Width * plane.Across);
  sums_.resize(widest);
  for (auto& row : stretched_) row.resize(widest);
  for (auto& row : mixed_) row.resize(widest);
}

/// A row of a plane with a sample for each pixel.
const std::uint8_t* Colour_Rows::Stretch(const Plane& plane, std::size_t y, std::vector<std::uint8_t>& room) {
  const auto row = [&](std::size_t number) { return plane.Samples.data() + number * plane.Pitch; };
  const std::size_t own = y / plane.Down;
  if (plane.Across == 1 && plane.Down == 1) return row(own);
  if (plane.Across <= 2 && plane.Down <= 2) {
    const bool upper = y % 2 == 0;
    std::size_t other = own;
    if (plane.Down == 2) other = upper ? own - (own > 0 ? 1 : 0) : std::min(own + 1, plane.Height - 1);
    Weigh_Rows(row(own), row(other), sums_.data(), plane.Width);
    if (plane.Across == 2) Stretch_Across(sums_.data(), room.data(), plane.Width);
    else Keep_Across(sums_.data(), upper ? 1 : 2, room.data(), plane.Width);
    return room.data();
  }
  for (std::size_t x = 0; x < width_; ++x) room[x] = row(own)[x / plane.Across];
  return room.data();
}

void Colour_Rows::Mix(const std::uint8_t* lightness, const std::uint8_t* blue, const std::uint8_t* red) {
  constexpr std::int16_t blue_weight = 7258, red_weight = 5743;  // of 4096
  Mix_One(lightness, blue, blue_weight, mixed_[0].data(), width_);
  Mix_Green(lightness, blue, red, mixed_[1].data(), width_);
  Mix_One(lightness, red, red_weight, mixed_[2].data(), width_);
}

void Colour_Rows::Write(std::size_t y, std::uint8_t* to) {
  const std::uint8_t* parts[3] = {};
  for (std::size_t i = 0; i < 3; ++i) parts[i] = i < planes_.size() ? Stretch(planes_[i], y, stretched_[i]) : parts[0];
  if (coded_) {
    Mix(parts[0], parts[1], parts[2]);
    for (std::size_t i = 0; i < 3; ++i) parts[i] = mixed_[i].data();
  } else {
    std::swap(parts[0], parts[2]);
  }
  for (std::size_t x = 0; x < width_; ++x, to += 3) {
    to[0] = parts[0][x];
    to[1] = parts[1][x];
    to[2] = parts[2][x];
  }
}

}  // namespace platform::win32::jpeg
