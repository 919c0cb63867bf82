// The contents of a pack's settings.ini: a line for each month, with the month's number, "=" and a value of three
// numbers joined by "-": box style, position and display mode.
#pragma once

#include <string>
#include <string_view>

#include "basic/int16.h"

namespace packs {

/// The value of a month in the bytes of a settings.ini: that of its last line, "" if it has none. Every line, for
/// whichever month, must have a number before its first "=": throws error 5 if there is no "=" and error 13 if there is
/// no number. A number is decimal and of any size, with an optional sign and fraction: "1", "01" and "1.0" are month 1;
/// "13" and "1.5" are valid, but no month.
std::string Find_Month_Value(std::string_view file_bytes, basic::Int16 month);

/// The three fields of a value: box style, position number, display mode. They throw error 5 if the "-" at an end of
/// the field is missing, error 13 if the field isn't a whole number and error 6 if it is beyond 16 bits. The display
/// mode is everything after the second "-".
basic::Int16 Get_Paper_BoxStyle(std::string_view value);
basic::Int16 Get_Paper_Pos(std::string_view value);
basic::Int16 Get_Paper_DisplayMode(std::string_view value);

}  // namespace packs
