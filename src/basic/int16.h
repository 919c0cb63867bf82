// A signed 16-bit number that never wraps: a value that doesn't fit throws error 6. The calendar's counters, positions
// and most of its settings have this type, so a value that is too large ends the program instead of showing a wrong
// date.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <utility>

#include "basic/run_error.h"

namespace basic {

/// Whole numbers and unscoped enumerations.
template <class T>
concept Whole_Number = std::convertible_to<T, std::int64_t> &&(std::integral<T> || std::is_enum_v<T>);

class Int16 {
 public:
  constexpr Int16() = default;

  /// Any whole number; throws error 6 outside -32768 to 32767.
  template <Whole_Number T>
  constexpr Int16(T value) : value_(Checked(+value)) {}  // NOLINT: meant to be implicit

  [[nodiscard]] constexpr int Value() const { return value_; }

  constexpr Int16& operator+=(Int16 other) { return *this = *this + other; }
  constexpr Int16& operator-=(Int16 other) { return *this = *this - other; }

  friend constexpr Int16 operator+(Int16 a, Int16 b) { return a.Value() + b.Value(); }
  friend constexpr Int16 operator-(Int16 a, Int16 b) { return a.Value() - b.Value(); }
  friend constexpr Int16 operator*(Int16 a, Int16 b) { return a.Value() * b.Value(); }
  friend constexpr bool operator==(Int16 a, Int16 b) = default;
  friend constexpr auto operator<=>(Int16 a, Int16 b) = default;

 private:
  template <Whole_Number T>
  static constexpr std::int16_t Checked(T value) {
    if (!std::in_range<std::int16_t>(value)) throw Run_Error(Error_Number::Overflow);
    return static_cast<std::int16_t>(value);
  }

  std::int16_t value_ = 0;
};

}  // namespace basic
