// Dates in the user's locale.
#pragma once

#include <string>

#include "basic/date_pattern.h"

namespace platform {

class Locale {
 public:
  virtual ~Locale() = default;

  /// Names and separators, as they were when the program started.
  virtual const basic::Date_Words& Words() = 0;

  /// The first day of the locale's week; Sunday if the system names none.
  virtual basic::Weekday First_Weekday() = 0;

  /// Append the day (first_day to last_day) in the locale's short or long form.
  virtual void Append_Short_Date(std::string& to, basic::Serial_Day day) = 0;
  virtual void Append_Long_Date(std::string& to, basic::Serial_Day day) = 0;

  /// Appends the moment in the locale's general form: the short date and, unless it is midnight, a blank and the time.
  virtual void Append_General_Date(std::string& to, const basic::Moment& moment) = 0;

  /// Reads a date that may have a time with it, in the locale's order and with its month names. Throws error 13.
  virtual basic::Moment Read_Moment(const std::string& text) = 0;

  /// Reads a date in the locale's own short form, or as numbers joined by "/", "." or "-". Throws error 13 for
  /// any other text.
  virtual basic::Serial_Day Read_Date(const std::string& text) = 0;
};

}  // namespace platform
