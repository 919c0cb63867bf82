// The text of the calendar's title, by the user's formats.
#pragma once

#include <string>

#include "calendar/dates.h"
#include "presentation/main_frm.h"

namespace calendar {

class Title_Text {
 public:
  Title_Text(presentation::Main_Frm& main_frm, Dates& dates, const settings::Settings& settings,
             const state::Calendar_State& calendar);

  /// Writes it into the title.
  void Write() { main_frm_.Which_Month_Lbl.Caption = Get_Bar_Text(); }

  /// The title of the month on view, by the settings Bar_Time, Bar_Time_Format and Bar_Date_Format. The text stays until
  /// the next call: the tick asks for it ten times a second, so its memory is kept.
  const std::string& Get_Bar_Text();

 private:
  void Append_Month_And_Year(const basic::Moment& day_of_view);
  void Append_Day_With_Suffix(basic::Serial_Day day);
  void Append_Date(const basic::Moment& now, const basic::Moment& day_of_view);

  presentation::Main_Frm& main_frm_;
  Dates& dates_;
  const settings::Settings& settings_;
  const state::Calendar_State& calendar_;
  std::string text_;
};

}  // namespace calendar
