// The text of the calendar's title, by the user's formats.
#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/locale.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace calendar {

/// "st", "nd", "rd" or "th", as goes with the number of a day.
const char* Get_Suffix(basic::Int16 day);

class Title_Text {
 public:
  Title_Text(platform::Clock& clock, platform::Locale& locale, const settings::Settings& settings,
             const state::Calendar_State& calendar);

  /// The title of the month on view, by the settings Bar_Time, Bar_Time_Format and Bar_Date_Format. The text stays until
  /// the next call: the tick asks for it ten times a second, so its memory is kept.
  const std::string& Get_Bar_Text();

 private:
  void Append_Month_And_Year(const basic::Moment& day_of_view);
  void Append_Day_With_Suffix(basic::Serial_Day day);
  void Append_Date(const basic::Moment& now, const basic::Moment& day_of_view);

  platform::Clock& clock_;
  platform::Locale& locale_;
  const settings::Settings& settings_;
  const state::Calendar_State& calendar_;
  std::string text_;
};

}  // namespace calendar
