#include "win32/user_locale.h"

#include "win32/handle.h"

namespace win32 {

namespace {

std::string Info(LCTYPE what) {
  char text[256];
  const int size = GetLocaleInfoA(LOCALE_USER_DEFAULT, what, text, sizeof text);
  return size > 0 ? std::string(text, static_cast<std::size_t>(size) - 1) : std::string();
}

/// Appends the day as the system writes it, by a flag or by a picture; appends nothing if it can't.
void Append_By_System(std::string& to, const basic::Civil_Date& date, DWORD flags, const char* picture) {
  SYSTEMTIME day = {};
  day.wYear = static_cast<WORD>(date.Year);
  day.wMonth = static_cast<WORD>(date.Month);
  day.wDay = static_cast<WORD>(date.Day);
  char text[256];
  const int size = GetDateFormatA(LOCALE_USER_DEFAULT, flags, &day, picture, text, sizeof text);
  if (size > 0) to.append(text, static_cast<std::size_t>(size) - 1);
}

/// The picture with the digits of `year` in place of its pieces for the year, in quotes so that they stand for
/// themselves.
std::string With_Year(std::string_view picture, int year) {
  std::string result;
  bool quoted = false;
  for (std::size_t i = 0; i < picture.size();) {
    if (picture[i] == '\'') quoted = !quoted;
    const std::size_t end = picture.find_first_not_of('y', i);
    const std::size_t run = (end == std::string_view::npos ? picture.size() : end) - i;
    if (quoted || run == 0) {
      result += picture[i++];
      continue;
    }
    result += '\'';
    basic::Append_Number(result, run > 2 ? year : year % 100, run > 2 ? 4 : static_cast<int>(run));
    result += '\'';
    i += run;
  }
  return result;
}

void Append_Day(std::string& to, basic::Serial_Day day, DWORD flags, LCTYPE picture) {
  // The system's days begin in 1601. An earlier day is written as the same day some cycles of 400 years later, which
  // has the same month and weekday, with its own year put in.
  constexpr int systems_first_year = 1601;
  basic::Civil_Date date = basic::Civil_From_Serial(day);
  if (date.Year >= systems_first_year) {
    Append_By_System(to, date, flags, nullptr);
    return;
  }
  const std::string with_year = With_Year(Info(picture), date.Year);
  while (date.Year < systems_first_year) date.Year += 400;
  Append_By_System(to, date, 0, with_year.c_str());
}

basic::Date_Order Present_Order() {
  const std::string number = Info(LOCALE_IDATE);
  if (number == "0") return basic::Date_Order::Month_First;
  return number == "2" ? basic::Date_Order::Year_First : basic::Date_Order::Day_First;
}

/// The last of the hundred years that the user means by two digits. The first systems don't tell it.
int Newest_Short_Year() {
  using Teller = int WINAPI(LCID, CALID, CALTYPE, char*, int, DWORD*);
  constexpr CALTYPE as_number = 0x20000000, newest_short_year = 0x30;
  Teller* const tell = Find_Function<Teller>(GetModuleHandleA("kernel32.dll"), "GetCalendarInfoA");
  DWORD year = 0;
  if (tell == nullptr ||
      tell(LOCALE_USER_DEFAULT, CAL_GREGORIAN, as_number | newest_short_year, nullptr, 0, &year) == 0 || year > 9999)
    return basic::Date_Rules().Newest_Short_Year;
  return static_cast<int>(year);
}

}  // namespace

User_Locale::User_Locale() {
  // The system's weekdays begin with Monday.
  for (LCTYPE i = 0; i < 7; ++i) {
    words_.Weekdays[(i + 1) % 7] = Info(LOCALE_SDAYNAME1 + i);
    words_.Short_Weekdays[(i + 1) % 7] = Info(LOCALE_SABBREVDAYNAME1 + i);
  }
  for (LCTYPE i = 0; i < 12; ++i) words_.Months[i] = Info(LOCALE_SMONTHNAME1 + i);
  words_.Date_Separator = Info(LOCALE_SDATE);
  words_.Time_Separator = Info(LOCALE_STIME);
}

basic::Weekday User_Locale::First_Weekday() {
  const std::string number = Info(LOCALE_IFIRSTDAYOFWEEK);
  if (number.size() != 1 || number[0] < '0' || number[0] > '5') return basic::Weekday::Sunday;
  return static_cast<basic::Weekday>(number[0] - '0' + static_cast<int>(basic::Weekday::Monday));
}

void User_Locale::Append_General_Date(std::string& to, const basic::Moment& moment) {
  Append_Short_Date(to, moment.Day);
  if (moment.Seconds() == 0) return;
  to += ' ';
  Append_Time(to, moment);
}

void User_Locale::Append_Short_Date(std::string& to, basic::Serial_Day day) {
  Append_Day(to, day, DATE_SHORTDATE, LOCALE_SSHORTDATE);
}

void User_Locale::Append_Long_Date(std::string& to, basic::Serial_Day day) {
  Append_Day(to, day, DATE_LONGDATE, LOCALE_SLONGDATE);
}

/// Thousands of dates are read in a row: the system is asked once in a second.
const basic::Date_Rules& User_Locale::Rules() {
  constexpr DWORD a_second = 1000;  // milliseconds
  const DWORD now = GetTickCount();
  if (!asked_ || now - asked_at_ >= a_second) {
    rules_ = {Present_Order(), Newest_Short_Year()};
    asked_ = true;
    asked_at_ = now;
  }
  return rules_;
}

basic::Serial_Day User_Locale::Read_Date(const std::string& text) { return Read_Moment(text).Day; }

/// What names a day of a year is read here, by one rule for years of two digits; the rest by the system's automation, which
/// may have another.
basic::Moment User_Locale::Read_Moment(const std::string& text) {
  if (const auto moment = basic::Read_Moment(text, Rules(), words_)) return *moment;
  return automation_.Moment_Of_Text(text);
}

}  // namespace win32
