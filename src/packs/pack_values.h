// What stands in a pack's settings.ini: a line for each month, the month's number, "=" and a value of three numbers
// joined by "-": box style, position and display mode.
#pragma once

#include <string>
#include <string_view>

#include "basic/int16.h"

namespace packs {

/// The value of a month in the bytes of a settings.ini: that of its last line, "" if it has none. Every line must have a
/// number before its first "=", for whichever month: throws error 5 where there is no "=" and error 13 where there is no
/// number. A number is written in decimal, with or without a sign and a fraction, and has any size: "1", "01" and "1.0"
/// are month 1, "13" and "1.5" are numbers that no month has.
std::string Find_Month_Value(std::string_view file_bytes, basic::Int16 month);

/// The three fields of a value: box style, position number, display mode. Throw error 5 where a "-" is missing, error 13
/// where a field is no whole number and error 6 where it is beyond 16 bits. The display mode is everything after the
/// second "-".
basic::Int16 Get_Paper_BoxStyle(std::string_view value);
basic::Int16 Get_Paper_Pos(std::string_view value);
basic::Int16 Get_Paper_DisplayMode(std::string_view value);

}  // namespace packs
