// What a screen reader hears of the month: each day box as one thing, with its date and its whole event, and what the
// arrows and the weekday headers stand for. It is composed only when a reader asks; drawing a month costs nothing more.
#pragma once

#include "calendar/month_grid.h"

namespace calendar {

class Spoken_Month {
 public:
  /// Gives the controls of the calendar's window their names.
  Spoken_Month(presentation::Main_Frm& main_frm, const Month_Grid& grid, const Dates& dates,
               const settings::Settings& settings);

 private:
  /// The long date in the locale's form, "today" if it is, and the event; empty for a box without a day.
  [[nodiscard]] std::string Day(int box) const;
  [[nodiscard]] std::string Weekday(int column) const;

  presentation::Main_Frm& main_frm_;
  const Month_Grid& grid_;
  const Dates& dates_;
  const settings::Settings& settings_;
};

}  // namespace calendar
