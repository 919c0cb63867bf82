// The date service: the present moment, and dates in the words of the user's locale.
#pragma once

#include "platform/clock.h"
#include "platform/locale.h"
#include "settings/settings.h"

namespace calendar {

class Dates {
 public:
  Dates(platform::Clock& clock, platform::Locale& locale) : clock_(clock), locale_(locale) {}

  [[nodiscard]] basic::Moment Now() const { return clock_.Now(); }
  [[nodiscard]] basic::Serial_Day Present_Day() const { return clock_.Now().Day; }
  [[nodiscard]] basic::Civil_Date Today() const { return basic::Civil_From_Serial(Present_Day()); }

  [[nodiscard]] const basic::Date_Words& Words() const { return locale_.Words(); }
  void Append_Short_Date(std::string& to, basic::Serial_Day day) const { locale_.Append_Short_Date(to, day); }
  void Append_Long_Date(std::string& to, basic::Serial_Day day) const { locale_.Append_Long_Date(to, day); }

  /// Reads a date in the locale's order. Throws error 13 if the text isn't a date.
  [[nodiscard]] basic::Serial_Day Read_Date(const std::string& text) const { return locale_.Read_Date(text); }

  /// The general form, and the reading of a date that may have a time with it. The reading throws error 13.
  void Append_General_Date(std::string& to, const basic::Moment& moment) const {
    locale_.Append_General_Date(to, moment);
  }
  [[nodiscard]] basic::Moment Read_Moment(const std::string& text) const { return locale_.Read_Moment(text); }

  /// Append the short date, and the general form of a moment, so that they read back as the same day: the date has no
  /// blanks, and is written with the year first where the locale's form would be read as another day or not at all.
  void Append_Readable_Date(std::string& to, basic::Serial_Day day) const;
  void Append_Readable_Moment(std::string& to, const basic::Moment& moment) const;

  /// The first day of the grid's week: the setting's, or the locale's if the setting is 0. Throws error 5 for a setting
  /// outside 0 to 7.
  [[nodiscard]] basic::Weekday First_Day_Of_Week(const settings::Settings& settings) const;

 private:
  platform::Clock& clock_;
  platform::Locale& locale_;
};

/// The suffix of an ordinal number: "st", "nd", "rd" or "th".
const char* Get_Suffix(basic::Int16 day);

}  // namespace calendar
