// Reading a date that may be written with a month's name and with a time of day.
#pragma once

#include <optional>
#include <string_view>

#include "basic/date_pattern.h"
#include "basic/date_reading.h"

namespace basic {

/// The moment that a text names; nothing where it names none. A date is three numbers as Read_Numeric_Date takes them, or
/// a month's name, of which three letters are enough, with the day and the year around or behind it, and a weekday in front,
/// full or short, that isn't looked at further. Behind a blank a time may follow: hours and minutes, maybe seconds, maybe AM
/// or PM. A time alone is one of day 0.
std::optional<Moment> Read_Moment(std::string_view text, const Date_Rules& rules, const Date_Words& words);

}  // namespace basic
