// The three locales of the in-memory platform, in code page 1252: en-GB (the default), en-US and de-DE.
#pragma once

#include <string_view>

#include "platform/locale.h"

namespace memory {

struct Locale_Data;

class Memory_Locale : public platform::Locale {
 public:
  Memory_Locale();

  const basic::Date_Words& Words() override;
  basic::Weekday First_Weekday() override;
  void Append_Short_Date(std::string& to, basic::Serial_Day day) override;
  void Append_Long_Date(std::string& to, basic::Serial_Day day) override;
  void Append_General_Date(std::string& to, const basic::Moment& moment) override;
  basic::Moment Read_Moment(const std::string& text) override;
  basic::Serial_Day Read_Date(const std::string& text) override;

  /// Chooses the locale for the next program; one that runs keeps its own. Returns false if there is no locale of that
  /// name.
  bool Choose(std::string_view name);

  /// A program starts, in the chosen locale.
  void Enter() { present_ = chosen_; }

 private:
  const Locale_Data* chosen_;
  const Locale_Data* present_;
};

}  // namespace memory
