// Dates and times as text by a pattern, as the title, the alert and the overview show them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "basic/serial_day.h"

namespace basic {

/// What a pattern needs of the user's locale.
struct Date_Words {
  std::array<std::string, 7> Weekdays;        ///< full names, Sunday first
  std::array<std::string, 7> Short_Weekdays;  ///< abbreviated names, Sunday first
  std::array<std::string, 12> Months;         ///< full names, January first
  std::string Date_Separator;                 ///< what "/" of a pattern becomes
  std::string Time_Separator;                 ///< what ":" of a pattern becomes

  [[nodiscard]] const std::string& Weekday_Name(Weekday day) const { return Weekdays[static_cast<unsigned>(day) - 1]; }
  [[nodiscard]] const std::string& Short_Weekday_Name(Weekday day) const {
    return Short_Weekdays[static_cast<unsigned>(day) - 1];
  }

  /// The name of month 1 to 12; throws error 5 for any other number.
  [[nodiscard]] const std::string& Month_Name(int month) const;
};

/// Appends the moment as the pattern tells. The pieces: d, dd, dddd (weekday), m, mm (minutes after an hour piece), yyyy,
/// H, HH, h, hh, ss, AM/PM (which makes the hours of the pattern run from 1 to 12); "/" and ":" become the locale's
/// separators, and every other character stands for itself.
void Append_Date(std::string& to, const Moment& moment, std::string_view pattern, const Date_Words& words);

std::string Format_Date(const Moment& moment, std::string_view pattern, const Date_Words& words);

/// Appends a number that isn't negative with leading zeros up to `digits`.
void Append_Number(std::string& to, int number, int digits = 1);

}  // namespace basic
