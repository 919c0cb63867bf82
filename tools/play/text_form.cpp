#include "text_form.h"

#include <array>
#include <charconv>
#include <cmath>

#include "basic/date_pattern.h"

namespace play {

namespace {

constexpr double longest_wait = 1e9;  // seconds

/// The bytes that have a short escape.
std::string_view Short_Escape(char c) {
  switch (c) {
    case '\r': return "\\r";
    case '\n': return "\\n";
    case '\t': return "\\t";
    case '"': return "\\\"";
    case '\\': return "\\\\";
    default: return {};
  }
}

template <class Number>
Number Parse(std::string_view word, const char* what) {
  Number number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size())
    throw Cannot_Play(std::string(what) + " expected, not " + Quoted(word));
  return number;
}

/// Three numbers with a separator between them.
std::array<int, 3> Parse_Three(std::string_view word, char separator, const char* what) {
  const std::size_t first = word.find(separator);
  const std::size_t second = word.find(separator, first + 1);
  if (first == std::string_view::npos || second == std::string_view::npos)
    throw Cannot_Play(std::string(what) + " expected, not " + Quoted(word));
  return {Parse<int>(word.substr(0, first), what), Parse<int>(word.substr(first + 1, second - first - 1), what),
          Parse<int>(word.substr(second + 1), what)};
}

bool Between(int value, int low, int high) { return value >= low && value <= high; }

}  // namespace

std::string Quoted(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string result = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    const std::string_view escape = Short_Escape(c);
    if (!escape.empty()) result += escape;
    else if (code < 0x20 || code > 0x7E) result.append("\\x").append(1, digits[code >> 4]).append(1, digits[code & 15]);
    else result += c;
  }
  return result + '"';
}

std::string Number_Text(double number) {
  std::array<char, 400> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed, 6);
  std::string text(buffer.data(), written.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Truth_Text(bool value) { return value ? "True" : "False"; }

std::string Moment_Text(const basic::Moment& moment) {
  const basic::Civil_Date date = basic::Civil_From_Serial(moment.Day);
  const int seconds = moment.Seconds();
  std::string text;
  basic::Append_Number(text, date.Year, 4);
  basic::Append_Number(text += '-', date.Month, 2);
  basic::Append_Number(text += '-', date.Day, 2);
  basic::Append_Number(text += ' ', seconds / 3600, 2);
  basic::Append_Number(text += ':', seconds / 60 % 60, 2);
  basic::Append_Number(text += ':', seconds % 60, 2);
  return text;
}

int To_Whole(std::string_view word) { return Parse<int>(word, "a whole number"); }

double To_Number(std::string_view word) {
  const auto number = Parse<double>(word, "a number");
  if (!std::isfinite(number)) throw Cannot_Play("a number expected, not " + Quoted(word));
  return number;
}

std::int64_t To_Micros(std::string_view seconds) {
  const double number = To_Number(seconds);
  if (number < 0 || number > longest_wait) throw Cannot_Play("no time to wait: " + Quoted(seconds));
  return std::llround(number * 1e6);
}

basic::Moment To_Moment(std::string_view day, std::string_view time) {
  const auto [year, month, day_of_month] = Parse_Three(day, '-', "a date as 2004-03-05");
  const auto [hour, minute, second] = Parse_Three(time, ':', "a time as 14:07:00");
  if (!Between(year, 100, 9999) || !Between(month, 1, 12) || !Between(day_of_month, 1, 31))
    throw Cannot_Play("no date: " + Quoted(day));
  if (!Between(hour, 0, 23) || !Between(minute, 0, 59) || !Between(second, 0, 59))
    throw Cannot_Play("no time of day: " + Quoted(time));
  const basic::Serial_Day serial = basic::Date_Serial(year, month, day_of_month);
  if (basic::Civil_From_Serial(serial).Day != day_of_month) throw Cannot_Play("no date: " + Quoted(day));
  return {serial, (std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second) * 1'000'000};
}

}  // namespace play
