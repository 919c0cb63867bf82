// One event as a line of calendar.dat: day "/" month "/" year "=" text. The year 9999 stands for every year; every "&"
// of the text is doubled.
#pragma once

#include <string>
#include <string_view>

#include "basic/int16.h"

namespace events {

constexpr int every_year = 9999;

struct Event_Line {
  basic::Int16 Day, Month, Year;
  std::string_view Text;  ///< as stored; points into the line that was read
};

/// Splits a line. Throws error 5 if there is no "=", error 13 if the part before it isn't three whole numbers joined by
/// "/", and error 6 for a number beyond 16 bits.
Event_Line Read_Event_Line(std::string_view line);

/// A date as it starts a line, such as 5/3/2004.
std::string Date_Key(basic::Int16 day, basic::Int16 month, basic::Int16 year);

/// The key of an event on that day in every year: the last four characters become 9999. Throws error 5 for a shorter
/// text.
std::string Every_Year_Form(const std::string& date_key);

}  // namespace events
