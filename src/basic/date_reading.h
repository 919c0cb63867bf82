// Reading a date that is written in numbers.
#pragma once

#include <optional>
#include <string_view>

#include "basic/serial_day.h"

namespace basic {

/// The order of day, month and year that a locale reads and writes.
enum class Date_Order { Month_First, Day_First, Year_First };

/// The day that three numbers joined by "/", "." or "-" name, blanks around them don't count; nothing where there is no
/// such day. What can't be in the locale's order is taken in another: a number of four digits or above 31 in front is the
/// year, day and month change places where the month would be above 12, and a locale that writes the year first reads a day
/// in front. Years of one or two digits are those from 1930 to 2029.
std::optional<Serial_Day> Read_Numeric_Date(std::string_view text, Date_Order order);

}  // namespace basic
