#include "exchange/overview_lists.h"

#include "basic/convert.h"
#include "basic/text.h"

namespace exchange {

namespace {

basic::Serial_Day Of_The_Calendar(basic::Serial_Day day) {
  if (day < basic::first_day || day > basic::last_day)
    throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return day;
}

}  // namespace

Dates_Entry Read_Dates_Entry(std::string_view entry) {
  const auto [key, text] = basic::Split_At_First(entry, '=');
  const std::size_t marker = key.find(every_year_marker);
  const bool every_year = marker != std::string_view::npos;
  return {Of_The_Calendar(basic::To_Int32(key.substr(0, marker))), every_year, text};
}

basic::Serial_Day Next_Day(basic::Serial_Day day) { return Of_The_Calendar(day + 1); }

}  // namespace exchange
