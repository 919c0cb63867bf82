// A clock that is set, a locale of its own and a box that notes what it shows: what the calendar's units work over.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/locale.h"
#include "platform/message_box.h"

class Fake_Clock : public platform::Clock {
 public:
  basic::Moment Moment;

  basic::Moment Now() override { return Moment; }

  void Set(int year, int month, int day, int hour = 9, int minute = 0, int second = 0) {
    Moment = {basic::Date_Serial(year, month, day), ((hour * 60LL + minute) * 60 + second) * 1'000'000};
  }
};

/// No language's names, so that none can be mistaken for another.
class Fake_Locale : public platform::Locale {
 public:
  basic::Date_Words Names{{"Weekday1", "Weekday2", "Weekday3", "Weekday4", "Weekday5", "Weekday6", "Weekday7"},
                          {"a1", "b2", "c3", "d4", "e5", "f6", "g7"},
                          {"Month1", "Month2", "Month3", "Month4", "Month5", "Month6", "Month7", "Month8", "Month9",
                           "Month10", "Month11", "Month12"},
                          "-",
                          "."};
  basic::Weekday First = basic::Weekday::Monday;

  const basic::Date_Words& Words() override { return Names; }
  basic::Weekday First_Weekday() override { return First; }
  void Append_Short_Date(std::string& to, basic::Serial_Day day) override {
    to += basic::Format_Date({day, 0}, "'yyyymmdd", Names);
  }
  void Append_Long_Date(std::string& to, basic::Serial_Day day) override {
    to += basic::Format_Date({day, 0}, "<yyyy/mm/dd>", Names);
  }
  void Append_General_Date(std::string& to, const basic::Moment& moment) override { Append_Short_Date(to, moment.Day); }
  basic::Moment Read_Moment(const std::string& text) override { return {Read_Date(text), 0}; }
  basic::Serial_Day Read_Date(const std::string&) override {
    throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  }
};

class Noting_Box : public platform::Message_Box {
 public:
  std::vector<std::string> Shown;
  std::function<void()> While_Open;  ///< what happens while a box is open

  platform::Box_Answer Show(const std::string& title, const std::string& text, platform::Box_Icon icon,
                            platform::Box_Buttons buttons) override {
    const bool as_information = icon == platform::Box_Icon::Information && buttons == platform::Box_Buttons::OK;
    Shown.push_back(title + ": " + text + (as_information ? "" : " (another icon or other buttons)"));
    if (While_Open) While_Open();
    return platform::Box_Answer::OK;
  }
};
