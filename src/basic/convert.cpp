#include "basic/convert.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "basic/text.h"

namespace basic {

namespace {

constexpr std::int64_t beyond_any_type = std::int64_t{1} << 40;

/// The number in a text of digits after an optional sign. A number that is larger than 2 to the power of 40 comes back
/// as that power, with its sign. Throws error 13 if the text isn't a number.
std::int64_t Number_Of_Digits(std::string_view text) {
  text = Trim_Blanks(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  if (text.empty()) throw Run_Error(Error_Number::Type_Mismatch);
  std::int64_t number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') throw Run_Error(Error_Number::Type_Mismatch);
    if (number < beyond_any_type) number = number * 10 + (digit - '0');
  }
  if (number > beyond_any_type) number = beyond_any_type;
  return negative ? -number : number;
}

/// Cuts the digits off the start of a text and returns them.
std::string_view Take_Digits(std::string_view& text) {
  const std::string_view taken = text.substr(0, text.find_first_not_of("0123456789"));
  text.remove_prefix(taken.size());
  return taken;
}

}  // namespace

Int16 To_Int16(std::string_view text) { return Number_Of_Digits(text); }

std::int32_t To_Int32(std::string_view text) {
  const std::int64_t number = Number_Of_Digits(text);
  if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max())
    throw Run_Error(Error_Number::Overflow);
  return static_cast<std::int32_t>(number);
}

Decimal Read_Decimal(std::string_view text) {
  text = Trim_Blanks(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  std::string_view whole = Take_Digits(text);
  std::string_view fraction;
  bool any_digit = !whole.empty();
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    fraction = Take_Digits(text);
    any_digit = any_digit || !fraction.empty();
  }
  if (!text.empty() || !any_digit) throw Run_Error(Error_Number::Type_Mismatch);
  whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
  fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
  return {negative, whole, fraction};
}

bool To_Boolean(std::string_view text) {
  const std::string_view word = Trim_Blanks(text);
  if (Same_Letters(word, "true")) return true;
  if (Same_Letters(word, "false")) return false;
  return !Read_Decimal(word).Is_Zero();
}

std::string To_Text(std::int32_t number) {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return {digits, end};
}

std::string To_Text(Int16 number) { return To_Text(std::int32_t{number.Value()}); }

std::string To_Text(bool value) { return value ? "True" : "False"; }

}  // namespace basic
