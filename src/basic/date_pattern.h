// Dates and times as text by a pattern, as the title, the alert and the overview show them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "basic/serial_day.h"

namespace basic {

/// The words and separators of the user's locale that a pattern needs.
struct Date_Words {
  std::array<std::string, 7> Weekdays;        ///< full names, Sunday first
  std::array<std::string, 7> Short_Weekdays;  ///< abbreviated names, Sunday first
  std::array<std::string, 12> Months;         ///< full names, January first
  std::string Date_Separator;                 ///< written for "/" in a pattern
  std::string Time_Separator;                 ///< written for ":" in a pattern

  [[nodiscard]] const std::string& Weekday_Name(Weekday day) const { return Weekdays[static_cast<unsigned>(day) - 1]; }
  [[nodiscard]] const std::string& Short_Weekday_Name(Weekday day) const {
    return Short_Weekdays[static_cast<unsigned>(day) - 1];
  }

  /// The name of month 1 to 12; throws error 5 for any other number.
  [[nodiscard]] const std::string& Month_Name(int month) const;
};

/// Appends the moment in the form that the pattern gives. Its pieces: d, dd, dddd (weekday), m, mm (the month, but the
/// minutes if only ":" stands between it and an hour), yyyy, H, HH, h, hh (hours), ss, AM/PM (makes all hours of the
/// pattern run from 1 to 12). "/" and ":" become the locale's separators, and every other character stands for itself.
void Append_Date(std::string& to, const Moment& moment, std::string_view pattern, const Date_Words& words);

std::string Format_Date(const Moment& moment, std::string_view pattern, const Date_Words& words);

/// Appends a number (0 or more), with leading zeros if it has fewer than `digits` digits.
void Append_Number(std::string& to, int number, int digits = 1);

}  // namespace basic
