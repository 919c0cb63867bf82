#include "packs/pack_values.h"

#include "basic/convert.h"
#include "basic/record_reader.h"
#include "basic/text.h"

namespace packs {

namespace {

constexpr std::string_view digits = "0123456789";

/// Cuts the digits off the start of a text and returns them.
std::string_view Take_Digits(std::string_view& text) {
  const std::string_view taken = text.substr(0, text.find_first_not_of(digits));
  text.remove_prefix(taken.size());
  return taken;
}

bool All_Zero(std::string_view some_digits) { return some_digits.find_first_not_of('0') == std::string_view::npos; }

/// Returns true if the text is the number of the month. Throws error 13 if it isn't a number.
bool Is_Month(std::string_view text, basic::Int16 month) {
  text = basic::Trim_Blanks(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  std::string_view whole = Take_Digits(text);
  std::string_view fraction;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    fraction = Take_Digits(text);
  }
  if (!text.empty() || (whole.empty() && fraction.empty())) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  whole.remove_prefix(All_Zero(whole) ? whole.size() : whole.find_first_not_of('0'));
  if (!All_Zero(fraction)) return false;
  const std::string wanted = basic::To_Text(month);
  return whole.empty() ? wanted == "0" : (negative ? "-" : "") + std::string(whole) == wanted;
}

}  // namespace

std::string Find_Month_Value(std::string_view file_bytes, basic::Int16 month) {
  basic::Record_Reader reader(file_bytes);
  std::string_view item;
  std::string_view found;
  while (reader.Next(item)) {
    const basic::Halves halves = basic::Split_At_First(item, '=');
    if (Is_Month(halves.left, month)) found = halves.right;
  }
  return std::string(found);
}

basic::Int16 Get_Paper_BoxStyle(std::string_view value) {
  return basic::To_Int16(basic::Split_At_First(value, '-').left);
}

basic::Int16 Get_Paper_Pos(std::string_view value) {
  const std::string_view after_style = basic::Split_At_First(value, '-').right;
  return basic::To_Int16(basic::Split_At_First(after_style, '-').left);
}

basic::Int16 Get_Paper_DisplayMode(std::string_view value) {
  const std::string_view after_style = basic::Split_At_First(value, '-').right;
  return basic::To_Int16(basic::Split_At_First(after_style, '-').right);
}

}  // namespace packs
