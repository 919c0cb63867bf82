#include "calendar/days.h"

namespace calendar {

basic::Weekday First_Day_Of_Week(const settings::Settings& settings, platform::Locale& locale) {
  if (settings.Start_Day == 0) return locale.First_Weekday();
  if (settings.Start_Day < 0 || settings.Start_Day > 7)
    throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return static_cast<basic::Weekday>(settings.Start_Day.Value());
}

basic::Int16 Start_Box(basic::Int16 month, basic::Int16 year, basic::Weekday first) {
  const basic::Serial_Day first_of_month = basic::Date_Serial(year.Value(), month.Value(), 1);
  return basic::Place_In_Week(basic::Weekday_Of(first_of_month), first) - 1;
}

std::int32_t DaysInMonth(basic::Serial_Day day) {
  const basic::Civil_Date date = basic::Civil_From_Serial(day);
  return basic::Civil_From_Serial(basic::Date_Serial(date.Year, date.Month + 1, 0)).Day;
}

}  // namespace calendar
