#include "basic/date_reading.h"

#include <array>
#include <charconv>
#include <utility>

#include "basic/text.h"

namespace basic {

namespace {

struct Number {
  int Value = 0;
  std::size_t Digits = 0;
};

bool Is_Separator(char c) { return c == '/' || c == '.' || c == '-'; }

/// Three numbers with a separator between them.
std::optional<std::array<Number, 3>> Split(std::string_view text) {
  std::array<Number, 3> numbers;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i > 0) {
      if (text.empty() || !Is_Separator(text.front())) return std::nullopt;
      text.remove_prefix(1);
    }
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), numbers[i].Value);
    numbers[i].Digits = static_cast<std::size_t>(end - text.data());
    if (failure != std::errc() || numbers[i].Value < 0) return std::nullopt;
    text.remove_prefix(numbers[i].Digits);
  }
  return text.empty() ? std::optional(numbers) : std::nullopt;
}

int Full_Year(const Number& year, int newest_short_year) {
  if (year.Digits > 2) return year.Value;
  const int of_its_century = newest_short_year - newest_short_year % 100 + year.Value;
  return of_its_century > newest_short_year ? of_its_century - 100 : of_its_century;
}

std::optional<Serial_Day> Day_Of(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
  const Serial_Day serial = Date_Serial(year, month, day);
  if (Civil_From_Serial(serial).Day != day) return std::nullopt;
  return serial;
}

}  // namespace

std::optional<Serial_Day> Read_Numeric_Date(std::string_view text, const Date_Rules& rules) {
  const auto numbers = Split(Trim_Blanks(text));
  if (!numbers) return std::nullopt;
  auto [day, month, year] = *numbers;
  Date_Order order = rules.Order;
  if (day.Digits > 2 || day.Value > 31) order = Date_Order::Year_First;
  else if (order == Date_Order::Year_First && year.Digits > 2) order = Date_Order::Day_First;
  if (order == Date_Order::Year_First) std::swap(day, year);
  if (order == Date_Order::Month_First) std::swap(day, month);
  if (month.Value > 12 && day.Value <= 12) std::swap(day, month);
  const auto serial = Day_Of(Full_Year(year, rules.Newest_Short_Year), month.Value, day.Value);
  const auto& [first, second, third] = *numbers;
  if (serial || third.Digits > 2) return serial;
  return Day_Of(Full_Year(first, rules.Newest_Short_Year), second.Value, third.Value);
}

}  // namespace basic
