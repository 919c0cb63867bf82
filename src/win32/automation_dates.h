// Dates with a time as the system's automation reads them: in the user's order and with the month names of the locale.
#pragma once

#include <string>

#include "basic/serial_day.h"
#include "win32/handle.h"

namespace win32 {

/// Loads the automation when it is first needed, and keeps it: an import reads thousands of dates.
class Automation_Dates {
 public:
  /// Throws error 13 for a text that is no date or time, or where the system has no automation.
  basic::Moment Moment_Of_Text(const std::string& text);

 private:
  using Reader = HRESULT WINAPI(const wchar_t*, LCID, ULONG, double*);

  Library_Owner automation_;
  Reader* read_ = nullptr;
};

/// The moment of a file's last change. Throws error 53 if it isn't there.
basic::Moment Moment_Of_Last_Change(const std::string& path);

/// Appends the time of day in the user's form.
void Append_Time(std::string& to, const basic::Moment& moment);

}  // namespace win32
