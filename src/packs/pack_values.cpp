#include "packs/pack_values.h"

#include "basic/convert.h"
#include "basic/record_reader.h"
#include "basic/text.h"

namespace packs {

namespace {

/// Returns true if the text is the number of the month. Throws error 13 if it isn't a number.
bool Is_Month(std::string_view text, basic::Int16 month) {
  const basic::Decimal number = basic::Read_Decimal(text);
  if (!number.Fraction.empty()) return false;
  const std::string wanted = basic::To_Text(month);
  return number.Whole.empty() ? wanted == "0" : (number.Negative ? "-" : "") + std::string(number.Whole) == wanted;
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
