#include "basic/serial_day.h"

namespace basic {

namespace {

// The count of days works on years that start in March, so that the leap day is the last of its year, and on eras of
// 400 years, which all have 146,097 days.
constexpr int days_of_an_era = 146097;
constexpr int serial_of_era_zero = -693899;  // 1 March of the year 0

constexpr std::int64_t Floor_Div(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

std::int64_t Serial_Of_First(std::int64_t year, int month) {
  const std::int64_t march_year = month > 2 ? year : year - 1;
  const std::int64_t era = Floor_Div(march_year, 400);
  const std::int64_t year_of_era = march_year - era * 400;
  const int march_month = (month + 9) % 12;
  const std::int64_t day_of_year = (153 * march_month + 2) / 5;
  const std::int64_t day_of_era = year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year;
  return era * days_of_an_era + day_of_era + serial_of_era_zero;
}

}  // namespace

Serial_Day Date_Serial(int year, int month, int day) {
  const std::int64_t months = std::int64_t{year} * 12 + (std::int64_t{month} - 1);
  const std::int64_t real_year = Floor_Div(months, 12);
  const int real_month = static_cast<int>(months - real_year * 12) + 1;
  const std::int64_t serial = Serial_Of_First(real_year, real_month) + (std::int64_t{day} - 1);
  if (serial < first_day || serial > last_day) throw Run_Error(Error_Number::Invalid_Procedure_Call);
  return static_cast<Serial_Day>(serial);
}

Civil_Date Civil_From_Serial(Serial_Day day) {
  const std::int64_t since = std::int64_t{day} - serial_of_era_zero;
  const std::int64_t era = Floor_Div(since, days_of_an_era);
  const int day_of_era = static_cast<int>(since - era * days_of_an_era);
  const int year_of_era = (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
  const int day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
  const int march_month = (5 * day_of_year + 2) / 153;
  const int month = march_month < 10 ? march_month + 3 : march_month - 9;
  const int year = year_of_era + static_cast<int>(era) * 400 + (month <= 2 ? 1 : 0);
  return {year, month, day_of_year - (153 * march_month + 2) / 5 + 1};
}

Weekday Weekday_Of(Serial_Day day) {
  // Day 0 was a Saturday.
  const int since_saturday = ((day % 7) + 7) % 7;
  return static_cast<Weekday>((since_saturday + 6) % 7 + 1);
}

int Place_In_Week(Weekday weekday, Weekday first) {
  return (static_cast<int>(weekday) - static_cast<int>(first) + 7) % 7 + 1;
}

Weekday Weekday_At(int place, Weekday first) {
  return static_cast<Weekday>((static_cast<int>(first) - 1 + place - 1) % 7 + 1);
}

std::int64_t Second_Count(const Moment& moment) { return std::int64_t{moment.Day} * 86400 + moment.Seconds(); }

}  // namespace basic
