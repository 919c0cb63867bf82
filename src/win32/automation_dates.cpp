#include "win32/automation_dates.h"

#include <cmath>

#include "basic/run_error.h"
#include "win32/system_library.h"

namespace win32 {

namespace {

using basic::Error_Number;
using basic::Run_Error;

constexpr std::int64_t micros_of_a_second = 1'000'000;
constexpr std::int64_t seconds_of_a_day = 86400;

/// The fraction of such a number is the time whatever the sign of the day is.
basic::Moment Moment_Of_Number(double number) {
  const double day = std::trunc(number);
  const auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(number - day) * seconds_of_a_day));
  return {static_cast<basic::Serial_Day>(day) + static_cast<basic::Serial_Day>(seconds / seconds_of_a_day),
          seconds % seconds_of_a_day * micros_of_a_second};
}

basic::Moment Moment_Of_System_Time(const SYSTEMTIME& time) {
  const std::int64_t seconds = (time.wHour * 60 + time.wMinute) * 60 + time.wSecond;
  return {basic::Date_Serial(time.wYear, time.wMonth, time.wDay), seconds * micros_of_a_second};
}

}  // namespace

basic::Moment Automation_Dates::Moment_Of_Text(const std::string& text) {
  if (!automation_) {
    automation_ = System_Library("oleaut32.dll");
    read_ = Find_Function<Reader>(automation_.Get(), "VarDateFromStr");
  }
  double number = 0;
  if (read_ == nullptr || FAILED(read_(Wide(text).c_str(), LOCALE_USER_DEFAULT, 0, &number)))
    throw Run_Error(Error_Number::Type_Mismatch);
  return Moment_Of_Number(number);
}

basic::Moment Moment_Of_Last_Change(const std::string& path) {
  WIN32_FIND_DATAA found = {};
  const Search_Owner search(Valid_Or_None(FindFirstFileA(path.c_str(), &found)));
  if (!search) throw Run_Error(Error_Number::File_Not_Found);
  FILETIME local = {};
  SYSTEMTIME time = {};
  if (FileTimeToLocalFileTime(&found.ftLastWriteTime, &local) == 0 || FileTimeToSystemTime(&local, &time) == 0)
    throw Run_Error(Error_Number::Invalid_Procedure_Call);
  return Moment_Of_System_Time(time);
}

void Append_Time(std::string& to, const basic::Moment& moment) {
  const int seconds = moment.Seconds();
  SYSTEMTIME time = {};
  time.wHour = static_cast<WORD>(seconds / 3600);
  time.wMinute = static_cast<WORD>(seconds / 60 % 60);
  time.wSecond = static_cast<WORD>(seconds % 60);
  char text[256];
  const int size = GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &time, nullptr, text, sizeof text);
  if (size > 0) to.append(text, static_cast<std::size_t>(size) - 1);
}

}  // namespace win32
