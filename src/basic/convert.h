// Text to number and back: whatever comes from a file, from the settings store or from a control passes through here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "basic/int16.h"

namespace basic {

/// Reads a decimal whole number with an optional sign; blanks around it are ignored. Throws error 13 if the text isn't
/// such a number (an empty text isn't one) and error 6 if the number doesn't fit the type.
Int16 To_Int16(std::string_view text);
std::int32_t To_Int32(std::string_view text);

/// A decimal number of any size, with an optional sign and fraction, taken apart.
struct Decimal {
  bool Negative;
  std::string_view Whole, Fraction;  ///< digits without zeros in front of the one and behind the other; lie in the text

  [[nodiscard]] bool Is_Zero() const { return Whole.empty() && Fraction.empty(); }
};

/// Throws error 13 if the text isn't such a number; blanks around it are ignored.
Decimal Read_Decimal(std::string_view text);

/// Reads "True" or "False" in any letter case, or a number, as above: 0 is false, any other is true. Throws error 13 for any
/// other text.
bool To_Boolean(std::string_view text);

std::string To_Text(std::int32_t number);
std::string To_Text(Int16 number);

/// "True" or "False".
std::string To_Text(bool value);

}  // namespace basic
