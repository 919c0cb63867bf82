#include "events/event_line.h"

#include <algorithm>

#include "basic/convert.h"
#include "basic/text.h"

namespace events {

namespace {

constexpr std::size_t longest_plain_date = std::string_view("31/12/9999=").size();

bool Is_Digit(int digit) { return digit >= 0 && digit <= 9; }

/// Takes a number of one digit or two and the slash behind it. Their lengths are anybody's guess, so nothing branches on
/// them; `plain` becomes false if something else stands there.
int Take_Short_Number(const char*& at, bool& plain) {
  const int first = at[0] - '0', second = at[1] - '0';
  const int two_digits = at[1] == '/' ? 0 : 1;
  plain &= Is_Digit(first) & (at[1 + two_digits] == '/') & (Is_Digit(second) | (two_digits == 0));
  at += 2 + two_digits;
  return first + two_digits * (9 * first + second);
}

int Take_Year(const char*& at, bool& plain) {
  int year = 0;
  for (const char* const end = at + 4; at != end; ++at) {
    plain &= Is_Digit(*at - '0');
    year = year * 10 + (*at - '0');
  }
  plain &= *at++ == '=';
  return year;
}

/// The short cut for a date as the program writes it: every line of the file passes here on every reading of it. Says
/// no where anything about the line is unusual.
bool Read_Plain_Line(std::string_view line, Event_Line& event) {
  if (line.size() < longest_plain_date) return false;
  const char* at = line.data();
  bool plain = true;
  const int day = Take_Short_Number(at, plain);
  const int month = Take_Short_Number(at, plain);
  const int year = Take_Year(at, plain);
  if (!plain) return false;
  event = {day, month, year, line.substr(static_cast<std::size_t>(at - line.data()))};
  return true;
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
  Event_Line event;
  if (Read_Plain_Line(line, event)) return event;
  auto [date, text] = basic::Split_At_First(line, '=');
  event.Text = text;
  event.Day = basic::To_Int16(Take_Field(date));
  event.Month = basic::To_Int16(Take_Field(date));
  event.Year = basic::To_Int16(date);
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
