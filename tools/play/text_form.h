// The form in which the player prints and reads values.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "basic/serial_day.h"

namespace play {

/// A scenario asks for what can't be played; says why.
struct Cannot_Play : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The text between double quotes, in printable characters alone.
std::string Quoted(std::string_view text);

/// In decimal, at most six digits after the point and no zeros at the end.
std::string Number_Text(double number);

/// "True" or "False".
std::string Truth_Text(bool value);

/// `YYYY-MM-DD HH:MM:SS`.
std::string Moment_Text(const basic::Moment& moment);

// The readers throw Cannot_Play at any other text.

int To_Whole(std::string_view word);
double To_Number(std::string_view word);

/// Seconds, not below 0, with fractions; in microseconds.
std::int64_t To_Micros(std::string_view seconds);

/// `YYYY-MM-DD` and `HH:MM:SS`.
basic::Moment To_Moment(std::string_view day, std::string_view time);

}  // namespace play
