// How many events there are: in all, this year, before and after today, and in each month of this year. They are counted
// by one pass over the file whenever the window becomes active.
#pragma once

#include <array>

#include "calendar/dates.h"
#include "events/event_file.h"
#include "toolkit/control_array.h"
#include "toolkit/frame.h"

namespace settings_window {

class Statistics {
 public:
  Statistics(toolkit::Frame& page, events::Event_File& event_file, calendar::Dates& dates);

  toolkit::Frame Events_Fra;
  toolkit::Label Total_All_Lbl, Total_Year_Lbl, Before_Lbl, After_Lbl;
  toolkit::Frame Yearview_Fra;
  toolkit::Control_Array<toolkit::Label> Month_Count_Lbl;  ///< from January on

  void Write_Month_Titles();

  /// Counts anew.
  void Get_Stats();

  void Reset_Vars();

  /// Counts the lines of the file and writes the labels, if there is a file and all of it can be counted.
  void Load_Dates();

  /// Counts a line. Throws error 5 or 13 for a line that is none or has no date that can be read, error 9 for a month
  /// that counts and isn't one, and error 6 where a counter overflows.
  void Workout_Stats(std::string_view line);

  void Write_Labels();

 private:
  void Place_Controls();

  /// The month of a line, from 1 on, goes up by one. Throws error 9 for a number that is no month.
  void Count_Month(basic::Int16 month);

  struct Counters {
    basic::Int16 Total_Count, Year_Count, Before_Count, After_Count;
    std::array<basic::Int16, 12> Month_Counts;
  };

  events::Event_File& event_file_;
  calendar::Dates& dates_;
  basic::Serial_Day today_ = 0;
  Counters counters_;
  std::array<std::string_view, 12> month_titles_;
};

}  // namespace settings_window
