// The user's locale, with the changes that the user made to it.
#pragma once

#include "basic/moment_reading.h"
#include "platform/locale.h"
#include "win32/automation_dates.h"

namespace win32 {

class User_Locale final : public platform::Locale {
 public:
  User_Locale();

  const basic::Date_Words& Words() override { return words_; }
  basic::Weekday First_Weekday() override;
  void Append_General_Date(std::string& to, const basic::Moment& moment) override;
  basic::Moment Read_Moment(const std::string& text) override;
  void Append_Short_Date(std::string& to, basic::Serial_Day day) override;
  void Append_Long_Date(std::string& to, basic::Serial_Day day) override;
  basic::Serial_Day Read_Date(const std::string& text) override;

 private:
  const basic::Date_Rules& Rules();

  basic::Date_Words words_;
  basic::Date_Rules rules_;
  bool asked_ = false;
  unsigned long asked_at_ = 0;  // milliseconds since the system's start
  Automation_Dates automation_;
};

}  // namespace win32
