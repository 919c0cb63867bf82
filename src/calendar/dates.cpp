#include "calendar/dates.h"

#include <cstdlib>

namespace calendar {

basic::Weekday Dates::First_Day_Of_Week(const settings::Settings& settings) const {
  if (settings.Start_Day == 0) return locale_.First_Weekday();
  if (settings.Start_Day < 0 || settings.Start_Day > 7)
    throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return static_cast<basic::Weekday>(settings.Start_Day.Value());
}

const char* Get_Suffix(basic::Int16 day) {
  const int number = day.Value();
  if (number >= 11 && number <= 13) return "th";
  switch (std::abs(number % 10)) {
    case 1: return "st";
    case 2: return "nd";
    case 3: return "rd";
    default: return "th";
  }
}

}  // namespace calendar
