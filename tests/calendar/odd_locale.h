// A locale whose short date and time a test chooses; it reads days first, and its own month names not at all.
#pragma once

#include "basic/moment_reading.h"
#include "platform/locale.h"

class Odd_Locale : public platform::Locale {
 public:
  std::string Pattern, Time = "HH:mm:ss";
  int Digits_Of_Year = 4;

  const basic::Date_Words& Words() override { return words_; }
  basic::Weekday First_Weekday() override { return basic::Weekday::Monday; }
  void Append_Short_Date(std::string& to, basic::Serial_Day day) override {
    basic::Append_Date(to, {day, 0}, Pattern, words_);
    const std::string year = std::to_string(basic::Civil_From_Serial(day).Year);
    to += year.substr(year.size() - static_cast<std::size_t>(Digits_Of_Year));
  }
  void Append_Long_Date(std::string& to, basic::Serial_Day day) override { Append_Short_Date(to, day); }
  void Append_General_Date(std::string& to, const basic::Moment& moment) override {
    Append_Short_Date(to, moment.Day);
    if (moment.Seconds() != 0) basic::Append_Date(to += ' ', moment, Time, words_);
  }
  basic::Moment Read_Moment(const std::string& text) override {
    const auto moment = basic::Read_Moment(text, {basic::Date_Order::Day_First}, words_);
    if (!moment) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
    return *moment;
  }
  basic::Serial_Day Read_Date(const std::string& text) override {
    const auto day = basic::Read_Numeric_Date(text, {basic::Date_Order::Day_First});
    if (!day) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
    return *day;
  }

 private:
  basic::Date_Words words_{{"", "", "", "", "", "", ""},
                           {"", "", "", "", "", "", ""},
                           {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
                           ".",
                           ":"};
};
