// The text of the calendar's title, in the user's formats.
#pragma once

#include <string>

#include "calendar/dates.h"
#include "presentation/main_frm.h"

namespace calendar {

class Title_Text {
 public:
  Title_Text(presentation::Main_Frm& main_frm, Dates& dates, const settings::Settings& settings,
             const state::Calendar_State& calendar);

  /// Composes the text and writes it into the title.
  void Write() { Write(dates_.Now()); }

  /// Called on each tick with the present moment: composes and writes the text if something else stands in the title, or
  /// if anything that it is made of has changed. To do so on all of the ten ticks a second would be half of the idle
  /// calendar's work. A change of the system's long date is seen with the next second.
  void Keep_Written(const basic::Moment& now);

  /// The title of the month on view, with or without the time, in the two formats. Valid until the next call.
  const std::string& Get_Bar_Text(bool show_time, const std::string& time_format, const std::string& date_format);

 private:
  void Write(const basic::Moment& now);
  const std::string& Bar_Text(const basic::Moment& now, bool show_time, const std::string& time_format,
                              const std::string& date_format);
  void Append_Month_And_Year(const basic::Moment& day_of_view);
  void Append_Day_With_Suffix(basic::Serial_Day day);
  void Append_Date(const std::string& format, const basic::Moment& now, const basic::Moment& day_of_view);
  [[nodiscard]] bool Is_Written_For(const basic::Moment& now) const;

  presentation::Main_Frm& main_frm_;
  Dates& dates_;
  const settings::Settings& settings_;
  const state::Calendar_State& calendar_;
  std::string text_;

  /// What the title's present text was made of.
  struct {
    basic::Serial_Day Day = 0;
    int Second = -1;
    basic::Int16 Month, Year;
    bool Small = false, Time = false;
    std::string Time_Format, Date_Format, Text;
  } written_;
};

}  // namespace calendar
