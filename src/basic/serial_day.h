// Days as numbers and as dates of the Gregorian calendar. Day 0 is 30 December 1899; the dates run from 1 January 100
// (day -657434) to 31 December 9999 (day 2958465).
#pragma once

#include <cstdint>

#include "basic/int16.h"

namespace basic {

/// Days since 30 December 1899.
using Serial_Day = std::int32_t;

constexpr Serial_Day first_day = -657434;
constexpr Serial_Day last_day = 2958465;

struct Civil_Date {
  int Year = 1899;  ///< 100 to 9999
  int Month = 12;   ///< 1 to 12
  int Day = 30;     ///< 1 to 31

  friend bool operator==(const Civil_Date&, const Civil_Date&) = default;
};

enum class Weekday { Sunday = 1, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

/// The serial day of a date. Month and day may lie outside their ranges: month 13 is January of the next year, day 0
/// the last day of the month before. Throws error 5 if the resulting day lies outside first_day to last_day.
Serial_Day Date_Serial(int year, int month, int day);

/// The date of a day from first_day to last_day.
Civil_Date Civil_From_Serial(Serial_Day day);

Weekday Weekday_Of(Serial_Day day);

/// The place of a weekday in a week that starts on `first`: 1 to 7.
int Place_In_Week(Weekday weekday, Weekday first);

/// The weekday at a place (1 to 7) of a week that starts on `first`.
Weekday Weekday_At(int place, Weekday first);

/// A moment of the local time.
struct Moment {
  Serial_Day Day = 0;
  std::int64_t Micros = 0;  ///< microseconds since midnight, 0 to 86,399,999,999

  [[nodiscard]] int Seconds() const { return static_cast<int>(Micros / 1'000'000); }
  friend bool operator==(const Moment&, const Moment&) = default;
};

/// Whole seconds since day 0, without the fraction. Subtract two of them for the time between two moments.
std::int64_t Second_Count(const Moment& moment);

}  // namespace basic
