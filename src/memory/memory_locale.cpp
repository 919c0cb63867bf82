#include "memory/memory_locale.h"

#include <algorithm>
#include <array>

#include "basic/moment_reading.h"

namespace memory {

struct Locale_Data {
  std::string_view Name;
  basic::Date_Words Words;
  basic::Weekday First_Weekday;
  std::string_view Short_Date;
  basic::Date_Order Order;
  std::string_view Before_Month, After_Month;  // the long date around the month's name
  std::string_view Time;
};

namespace {

using basic::Weekday;

basic::Date_Words English() {
  return {{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
          {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
          {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October", "November",
           "December"},
          "/",
          ":"};
}

basic::Date_Words German() {
  return {{"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
          {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"},
          {"Januar", "Februar", "M\xE4rz", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober", "November",
           "Dezember"},
          ".",
          ":"};
}

const std::array<Locale_Data, 3>& All() {
  static const std::array<Locale_Data, 3> locales{{
      {"en-GB", English(), Weekday::Monday, "dd/mm/yyyy", basic::Date_Order::Day_First, "d ", " yyyy", "HH:mm:ss"},
      {"en-US", English(), Weekday::Sunday, "m/d/yyyy", basic::Date_Order::Month_First, "dddd, ", " d, yyyy",
       "h:mm:ss AM/PM"},
      {"de-DE", German(), Weekday::Monday, "dd/mm/yyyy", basic::Date_Order::Day_First, "dddd, d. ", " yyyy",
       "HH:mm:ss"},
  }};
  return locales;
}

}  // namespace

Memory_Locale::Memory_Locale() : chosen_(&All().front()), present_(chosen_) {}

bool Memory_Locale::Choose(std::string_view name) {
  const auto* const found =
      std::find_if(All().begin(), All().end(), [&](const Locale_Data& locale) { return locale.Name == name; });
  if (found == All().end()) return false;
  chosen_ = found;
  return true;
}

const basic::Date_Words& Memory_Locale::Words() { return present_->Words; }

basic::Weekday Memory_Locale::First_Weekday() { return present_->First_Weekday; }

void Memory_Locale::Append_Short_Date(std::string& to, basic::Serial_Day day) {
  basic::Append_Date(to, {day, 0}, present_->Short_Date, present_->Words);
}

void Memory_Locale::Append_Long_Date(std::string& to, basic::Serial_Day day) {
  basic::Append_Date(to, {day, 0}, present_->Before_Month, present_->Words);
  to += present_->Words.Month_Name(basic::Civil_From_Serial(day).Month);
  basic::Append_Date(to, {day, 0}, present_->After_Month, present_->Words);
}

void Memory_Locale::Append_General_Date(std::string& to, const basic::Moment& moment) {
  Append_Short_Date(to, moment.Day);
  if (moment.Seconds() == 0) return;
  to += ' ';
  basic::Append_Date(to, moment, present_->Time, present_->Words);
}

basic::Moment Memory_Locale::Read_Moment(const std::string& text) {
  const auto moment = basic::Read_Moment(text, {present_->Order}, present_->Words);
  if (!moment) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  return *moment;
}

basic::Serial_Day Memory_Locale::Read_Date(const std::string& text) {
  const auto day = basic::Read_Numeric_Date(text, {present_->Order});
  if (!day) throw basic::Run_Error(basic::Error_Number::Type_Mismatch);
  return *day;
}

}  // namespace memory
