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

int Full_Year(const Number& year) {
  if (year.Digits > 2) return year.Value;
  return year.Value + (year.Value < 30 ? 2000 : 1900);
}

}  // namespace

std::optional<Serial_Day> Read_Numeric_Date(std::string_view text, Date_Order order) {
  const auto numbers = Split(Trim_Blanks(text));
  if (!numbers) return std::nullopt;
  auto [day, month, year] = *numbers;
  if (day.Digits > 2 || day.Value > 31) order = Date_Order::Year_First;
  else if (order == Date_Order::Year_First && year.Digits > 2) order = Date_Order::Day_First;
  if (order == Date_Order::Year_First) std::swap(day, year);
  if (order == Date_Order::Month_First) std::swap(day, month);
  if (month.Value > 12 && day.Value <= 12) std::swap(day, month);
  const int full_year = Full_Year(year);
  if (full_year < 100 || full_year > 9999 || month.Value < 1 || month.Value > 12 || day.Value < 1 || day.Value > 31)
    return std::nullopt;
  const Serial_Day serial = Date_Serial(full_year, month.Value, day.Value);
  if (Civil_From_Serial(serial).Day != day.Value) return std::nullopt;
  return serial;
}

}  // namespace basic
