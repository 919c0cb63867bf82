// The lists of the events' overview, as the exports read them and the import works on them.
#pragma once

#include <string_view>

#include "basic/serial_day.h"
#include "toolkit/item_list.h"

namespace exchange {

class Overview_Lists {
 public:
  /// Fills Dates from the event file and empties Events; without a file both keep what they hold.
  virtual void Reload_Overview() = 0;

  /// The sorted list of all events, each with its key in front.
  [[nodiscard]] virtual const toolkit::List_Box& Dates() const = 0;

  /// What the user sees; the import puts its own entries there.
  [[nodiscard]] virtual toolkit::List_Box& Events() = 0;

 protected:
  ~Overview_Lists() = default;
};

constexpr std::string_view every_year_marker = "(evr|yar)";  ///< behind the day number in Dates
constexpr std::string_view behind_date = "  -  ";
constexpr std::string_view behind_every_year_date = " (every year)  -  ";

/// An entry of Dates as the exports take it: what stands before its first "=" is a day number, be it one or not.
struct Dates_Entry {
  basic::Serial_Day Day;
  bool Every_Year;
  std::string_view Text;  ///< lies in the entry
};

/// Throws error 5 without a "=" and for a day outside the calendar, error 13 where no number stands in front of it, and
/// error 6 for one that is too large.
Dates_Entry Read_Dates_Entry(std::string_view entry);

/// The day after. Throws error 5 behind the last one.
basic::Serial_Day Next_Day(basic::Serial_Day day);

}  // namespace exchange
