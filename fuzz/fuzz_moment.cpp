// Any text as the date of a CSV row, by each order of a date: what is read is a moment that there is, blanks around the text
// and the case of its letters don't count, and the moment written in the locale's own forms reads back as itself.
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "basic/moment_reading.h"
#include "basic/text.h"
#include "fuzz/expect.h"

namespace {

using basic::Date_Order;
using basic::Moment;

const basic::Date_Words words{{"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
                              {"So.", "Mo.", "Di.", "Mi.", "Do.", "Fr.", "Sa."},
                              {"Januar", "Februar", "M\xE4rz", "April", "Mai", "Juni", "Juli", "August", "September",
                               "Oktober", "November", "Dezember"},
                              ".",
                              ":"};

constexpr std::pair<Date_Order, const char*> orders[] = {
    {Date_Order::Month_First, "m/d/yyyy"}, {Date_Order::Day_First, "d/m/yyyy"}, {Date_Order::Year_First, "yyyy/m/d"}};

constexpr std::int64_t micros_of_a_second = 1'000'000, seconds_of_a_day = 86'400;

void Expect_A_Moment(const Moment& moment) {
  Expect(moment.Micros >= 0 && moment.Micros < seconds_of_a_day * micros_of_a_second, "the time is one of a day");
  Expect(moment.Micros % micros_of_a_second == 0, "the time is one of whole seconds");
  if (moment.Day == 0) return;
  const basic::Civil_Date date = basic::Civil_From_Serial(moment.Day);
  Expect(date.Year >= 100 && date.Year <= 9999, "the year is one of the calendar");
  Expect(basic::Date_Serial(date.Year, date.Month, date.Day) == moment.Day, "there is such a day");
}

void Expect_Round_Trip(const Moment& moment, const basic::Date_Rules& rules, const std::string& pattern) {
  const std::string date = basic::Format_Date(moment, pattern, words);
  Expect(basic::Read_Moment(date, rules, words) == Moment{moment.Day, 0}, "a date reads back as it was written");
  for (const char* const time : {" HH:mm:ss", " h:mm:ss AM/PM"})
    Expect(basic::Read_Moment(date + basic::Format_Date(moment, time, words), rules, words) == moment,
           "a date with a time reads back as it was written");
  const basic::Civil_Date civil = basic::Civil_From_Serial(moment.Day);
  const std::string named = basic::Format_Date(moment, "dddd, d. ", words) + words.Month_Name(civil.Month) +
                            basic::Format_Date(moment, " yyyy", words);
  Expect(basic::Read_Moment(named, rules, words) == Moment{moment.Day, 0}, "a long date reads back as it was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  for (const auto& [order, pattern] : orders) {
    const basic::Date_Rules rules{order, 2029 + static_cast<int>(size % 3) * 35};
    const auto moment = basic::Read_Moment(text, rules, words);
    Expect(basic::Read_Moment("  " + text + " ", rules, words) == moment, "blanks around the text don't count");
    Expect(basic::Read_Moment(basic::Upper_Case(text), rules, words) == moment, "the case of letters doesn't count");
    if (const auto day = basic::Read_Numeric_Date(text, rules))
      Expect(moment == Moment{*day, 0}, "a date in numbers is read alike in both ways");
    if (!moment) continue;
    Expect_A_Moment(*moment);
    if (moment->Day != 0) Expect_Round_Trip(*moment, rules, pattern);
  }
  return 0;
}
