// From months to boxes and back: the arithmetic of the grid.
#pragma once

#include "basic/serial_day.h"
#include "platform/locale.h"
#include "settings/settings.h"

namespace calendar {

/// The first day of the grid's week: the setting's, or the locale's where the setting is 0. Throws error 5 for a setting
/// outside 0 to 7.
basic::Weekday First_Day_Of_Week(const settings::Settings& settings, platform::Locale& locale);

/// The box of the first day of a month: the distance of its weekday from the first day of the week. Throws error 5 for a
/// year outside 100 to 9999.
basic::Int16 Start_Box(basic::Int16 month, basic::Int16 year, basic::Weekday first);

/// The number of days of the month that the day lies in.
std::int32_t DaysInMonth(basic::Serial_Day day);

}  // namespace calendar
