#include "calendar/dates.h"

#include <cstdlib>

namespace calendar {

namespace {

/// A form that isn't read at all is no better than one that is read as another day.
template <class Reading>
bool Gives(basic::Serial_Day day, const Reading& read) {
  try {
    return read() == day;
  } catch (const basic::Run_Error&) {
    return false;
  }
}

}  // namespace

basic::Weekday Dates::First_Day_Of_Week(const settings::Settings& settings) const {
  if (settings.Start_Day < 0 || settings.Start_Day > 7)
    throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return settings.Start_Day == 0 ? locale_.First_Weekday() : static_cast<basic::Weekday>(settings.Start_Day.Value());
}

void Dates::Append_Readable_Date(std::string& to, basic::Serial_Day day) const {
  std::string date;
  Append_Short_Date(date, day);
  std::erase(date, ' ');
  if (Gives(day, [&] { return Read_Date(date); })) to += date;
  else basic::Append_Date(to, {day, 0}, "yyyy-mm-dd", Words());
}

void Dates::Append_Readable_Moment(std::string& to, const basic::Moment& moment) const {
  std::string text;
  Append_Readable_Date(text, moment.Day);
  if (moment.Seconds() != 0) {
    std::string short_date, general;
    Append_Short_Date(short_date, moment.Day);
    Append_General_Date(general, moment);
    text += general.substr(short_date.size());
    if (!Gives(moment.Day, [&] { return Read_Moment(text).Day; }))
      text = basic::Format_Date(moment, "yyyy-mm-dd HH:mm:ss", Words());
  }
  to += text;
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
