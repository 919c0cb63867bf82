#include "events/event_line.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "basic/convert.h"
#include "basic/text.h"

namespace events {

namespace {

constexpr std::size_t longest_plain_date = std::string_view("31/12/9999=").size();
constexpr std::uint64_t zeros = 0x3030303030303030;  // eight times "0"

/// The bytes from `at` on as a number, the first one lowest.
template <class Word>
Word Load(const char* at) {
  static_assert(std::endian::native == std::endian::little);
  Word word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

/// Moves `at` past a number of one or two digits and the slash after it. Returns the two digits as characters, the tens
/// in the low byte; `plain` becomes false if there is no slash. One digit or two are equally likely, so a branch would
/// be mispredicted half the time.
std::uint64_t Take_Two_Digits(const char*& at, bool& plain) {
  const unsigned one = at[1] == '/' ? 1 : 0;
  const unsigned digits = static_cast<unsigned>(Load<std::uint16_t>(at)) << 8U * one | '0' * one;
  plain &= at[2 - one] == '/';
  at += 3 - one;
  return digits & 0xFFFFU;
}

/// The fast path for a date as the program writes it. It runs for every line of the file in every reading, so it checks
/// all eight digits at once. Returns false if anything about the line is unusual.
bool Read_Plain_Line(std::string_view line, Event_Line& event) {
  if (line.size() < longest_plain_date) return false;
  const char* at = line.data();
  bool plain = true;
  std::uint64_t digits = Take_Two_Digits(at, plain);
  digits |= Take_Two_Digits(at, plain) << 16U;
  digits |= std::uint64_t{Load<std::uint32_t>(at)} << 32U;
  digits ^= zeros;
  // Adding 0x76 sets the top bit of every byte above 9.
  const bool above_nine = (((digits + 0x7676767676767676) | digits) & 0x8080808080808080) != 0;
  if (!plain | above_nine | (at[4] != '=')) return false;
  const std::uint64_t pairs = digits * 10 + (digits >> 8U);  // in every second byte the value of two digits
  const auto pair = [&](unsigned place) { return static_cast<int>(pairs >> 16U * place & 0xFFU); };
  event = {pair(0), pair(1), pair(2) * 100 + pair(3), line.substr(static_cast<std::size_t>(at + 5 - line.data()))};
  return true;
}

/// Cuts the part before the next "/" off the front of the date and returns it. Throws error 13 if there is no "/".
std::string_view Take_Field(std::string_view& date) {
  const auto slash = std::find(date.begin(), date.end(), '/');
  if (slash == date.end()) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  const auto length = static_cast<std::size_t>(slash - date.begin());
  const std::string_view field = date.substr(0, length);
  date.remove_prefix(length + 1);
  return field;
}

}  // namespace

Event_Line Read_Event_Line(std::string_view line) {
  Event_Line event;
  if (Read_Plain_Line(line, event)) return event;
  auto [date, text] = basic::Split_At_First(line, '=');
  event.Text = text;
  event.Day = basic::To_Int16(Take_Field(date));
  event.Month = basic::To_Int16(Take_Field(date));
  event.Year = basic::To_Int16(date);
  return event;
}

std::string Date_Key(basic::Int16 day, basic::Int16 month, basic::Int16 year) {
  return basic::To_Text(day) + "/" + basic::To_Text(month) + "/" + basic::To_Text(year);
}

std::string Every_Year_Form(const std::string& date_key) {
  if (date_key.size() < 4) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return date_key.substr(0, date_key.size() - 4) + basic::To_Text(every_year);
}

}  // namespace events
