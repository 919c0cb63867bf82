#include "basic/moment_reading.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "basic/text.h"

namespace basic {

namespace {

constexpr std::int64_t micros_of_a_second = 1'000'000;
constexpr std::size_t shortest_name = 3;

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

/// Takes the digits off the front of the text, two at most; nothing if there are none or it is too large.
std::optional<int> Take_Number(std::string_view& text, int largest) {
  std::size_t digits = 0;
  while (digits < text.size() && digits < 2 && Is_Digit(text[digits])) ++digits;
  int number = 0;
  std::from_chars(text.data(), text.data() + digits, number);
  text.remove_prefix(digits);
  return digits == 0 || number > largest ? std::nullopt : std::optional(number);
}

bool Take(std::string_view& text, std::string_view piece) {
  if (!text.starts_with(piece)) return false;
  text.remove_prefix(piece.size());
  return true;
}

/// The hour of a day for the hour that is written, by the word behind the time; nothing where the two don't go together.
std::optional<int> Hour_By_Half(int hour, std::string_view half) {
  if (half.empty()) return hour;
  const bool afternoon = Same_Letters(half, "PM");
  if ((!afternoon && !Same_Letters(half, "AM")) || hour < 1 || hour > 12) return std::nullopt;
  return hour % 12 + (afternoon ? 12 : 0);
}

std::optional<std::int64_t> Read_Time(std::string_view text, std::string_view separator) {
  const auto hour = Take_Number(text, 23);
  if (!hour || !Take(text, separator)) return std::nullopt;
  const auto minute = Take_Number(text, 59);
  if (!minute) return std::nullopt;
  std::optional<int> second = 0;
  if (Take(text, separator)) second = Take_Number(text, 59);
  const auto hour_of_day = Hour_By_Half(*hour, Trim_Blanks(text));
  if (!second || !hour_of_day) return std::nullopt;
  return ((*hour_of_day * std::int64_t{60} + *minute) * 60 + *second) * micros_of_a_second;
}

/// What stands between blanks, commas and the signs that join a date.
std::vector<std::string_view> Words_Of(std::string_view text) {
  constexpr std::string_view between = " ,./-";
  std::vector<std::string_view> words;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(between), text.size()));
    if (text.empty()) return words;
    const std::size_t length = std::min(text.find_first_of(between), text.size());
    words.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
}

/// The month that a word names, 0 for none.
int Month_Of_Name(std::string_view word, const Date_Words& words) {
  if (word.size() < shortest_name) return 0;
  for (int month = 1; month <= 12; ++month)
    if (Same_Letters(word, std::string_view(words.Month_Name(month)).substr(0, word.size()))) return month;
  return 0;
}

bool Is_Weekday(std::string_view word, const Date_Words& words) {
  const auto is_it = [&](std::string_view name) {
    // Some systems write a point behind the short name, which is no part of a word here.
    return Same_Letters(word, name.substr(0, name.find('.')));
  };
  return std::any_of(words.Weekdays.begin(), words.Weekdays.end(), is_it) ||
         std::any_of(words.Short_Weekdays.begin(), words.Short_Weekdays.end(), is_it);
}

/// The name takes its place among the numbers, between the day and the year. Without a name there is no month.
std::optional<Serial_Day> Read_Named_Date(std::string_view text, const Date_Rules& rules, const Date_Words& words) {
  std::vector<std::string_view> pieces = Words_Of(text);
  if (pieces.size() == 4 && Is_Weekday(pieces.front(), words)) pieces.erase(pieces.begin());
  if (pieces.size() != 3) return std::nullopt;
  if (Month_Of_Name(pieces[0], words) != 0) std::swap(pieces[0], pieces[1]);
  std::string numbers(pieces[0]);
  numbers.append("/").append(std::to_string(Month_Of_Name(pieces[1], words))).append("/").append(pieces[2]);
  return Read_Numeric_Date(numbers, {Date_Order::Day_First, rules.Newest_Short_Year});
}

std::optional<Serial_Day> Read_Day(std::string_view text, const Date_Rules& rules, const Date_Words& words) {
  const auto day = Read_Numeric_Date(text, rules);
  return day ? day : Read_Named_Date(text, rules, words);
}

}  // namespace

std::optional<Moment> Read_Moment(std::string_view text, const Date_Rules& rules, const Date_Words& words) {
  text = Trim_Blanks(text);
  if (const auto day = Read_Day(text, rules, words)) return Moment{*day, 0};
  const std::size_t separator = text.find(words.Time_Separator);
  if (words.Time_Separator.empty() || separator == std::string_view::npos) return std::nullopt;
  const std::size_t blank = text.substr(0, separator).rfind(' ');
  const std::string_view date = blank == std::string_view::npos ? std::string_view() : text.substr(0, blank);
  const auto time = Read_Time(text.substr(blank + 1), words.Time_Separator);
  if (!time) return std::nullopt;
  if (date.empty()) return Moment{0, *time};
  const auto day = Read_Day(date, rules, words);
  return day ? std::optional(Moment{*day, *time}) : std::nullopt;
}

}  // namespace basic
