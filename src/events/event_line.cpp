#include "events/event_line.h"

#include <algorithm>

#include "basic/convert.h"
#include "basic/text.h"

namespace events {

namespace {

/// A field of the date. Nearly all are one to four digits, and every line of the file passes here on every reading of
/// it, so those take a short cut.
basic::Int16 Field(std::string_view digits) {
  if (digits.empty() || digits.size() > 4) return basic::To_Int16(digits);
  int number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return basic::To_Int16(digits);
    number = number * 10 + (digit - '0');
  }
  return number;
}

/// Takes what stands before the next "/" off the front of the date.
std::string_view Take_Field(std::string_view& date) {
  const auto slash = std::find(date.begin(), date.end(), '/');
  if (slash == date.end()) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  const auto length = static_cast<std::size_t>(slash - date.begin());
  const std::string_view field = date.substr(0, length);
  date.remove_prefix(length + 1);
  return field;
}

}  // namespace

Event_Line Read_Event_Line(std::string_view line) {
  auto [date, text] = basic::Split_At_First(line, '=');
  Event_Line event;
  event.Text = text;
  event.Day = Field(Take_Field(date));
  event.Month = Field(Take_Field(date));
  event.Year = Field(date);
  return event;
}

std::string Date_Key(basic::Int16 day, basic::Int16 month, basic::Int16 year) {
  return basic::To_Text(day) + "/" + basic::To_Text(month) + "/" + basic::To_Text(year);
}

std::string Every_Year_Form(const std::string& date_key) {
  if (date_key.size() < 4) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return date_key.substr(0, date_key.size() - 4) + basic::To_Text(every_year);
}

}  // namespace events
