// Text to number and back: whatever comes from a file, from the settings store or from a control passes through here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "basic/int16.h"

namespace basic {

/// A whole number in decimal, with a sign or without; blanks around it don't count. Throws error 13 if the text is no
/// such number (an empty text isn't one) and error 6 if the number doesn't fit the type.
Int16 To_Int16(std::string_view text);
std::int32_t To_Int32(std::string_view text);

/// "True" or "False" in any case, or a whole number, of which 0 alone is false. Throws error 13 for any other text and
/// error 6 for a number outside 32 bits.
bool To_Boolean(std::string_view text);

std::string To_Text(std::int32_t number);
std::string To_Text(Int16 number);

/// "True" or "False".
std::string To_Text(bool value);

}  // namespace basic
