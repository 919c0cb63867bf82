// Reading a date that is written in numbers.
#pragma once

#include <optional>
#include <string_view>

#include "basic/serial_day.h"

namespace basic {

/// The order in which a locale reads and writes day, month and year.
enum class Date_Order { Month_First, Day_First, Year_First };

/// How numbers are read as a date. A year of one or two digits is one of the hundred years that end with the newest one.
struct Date_Rules {
  Date_Order Order = Date_Order::Day_First;
  int Newest_Short_Year = 2029;
};

/// Reads a day from three numbers joined by "/", "." or "-"; blanks around the text are ignored. Returns nothing if
/// there is no such day in the years 100 to 9999.
///
/// Numbers that can't be in the locale's order are read in another one. A first number above 31, or of more than two
/// digits, is the year, followed by month and day. If a locale writes the year first and the last number has more than
/// two digits, the day comes first. If the month would be above 12, day and month change places. Where there is no such day
/// and the last number may be a day, the first one is the year: 31/2/04 is 4 February 1931.
std::optional<Serial_Day> Read_Numeric_Date(std::string_view text, const Date_Rules& rules);

}  // namespace basic
