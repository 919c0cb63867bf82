#include "calendar/popup_menus.h"

#include "presentation/menus.h"
#include "toolkit/input.h"

namespace calendar {

namespace {

constexpr basic::Weekday monday_first[] = {
    basic::Weekday::Monday, basic::Weekday::Tuesday,  basic::Weekday::Wednesday, basic::Weekday::Thursday,
    basic::Weekday::Friday, basic::Weekday::Saturday, basic::Weekday::Sunday,
};

}  // namespace

Popup_Menus::Popup_Menus(platform::Popup_Menu& menu, presentation::Main_Frm& main_frm, Desk& desk, Dates& dates,
                         settings::Stored_Settings& stored, const state::Calendar_State& calendar)
    : menu_(menu), main_frm_(main_frm), desk_(desk), dates_(dates), stored_(stored), calendar_(calendar) {}

int Popup_Menus::Track(const std::vector<platform::Menu_Item>& items) {
  const toolkit::Input::Menu open(main_frm_.Window.System().Input);
  return menu_.Track(main_frm_.Window.Handle(), items);
}

void Popup_Menus::Popup_Menu(basic::Int16 index) {
  switch (Track(presentation::Box_Menu(main_frm_))) {
    case presentation::clear_event: desk_.Clear_Day(index); break;
    case presentation::edit_event: desk_.Edit_Day(index); break;
    case presentation::open_settings: desk_.Show_Settings(); break;
    case presentation::exit_program: desk_.Exit(); break;
    default: break;
  }
}

void Popup_Menus::Popup_Months() {
  const basic::Civil_Date today = dates_.Today();
  const int month =
      Track(presentation::Months_Menu(calendar_.View_Month, calendar_.View_Year, today.Month, today.Year));
  // The year is read after the choice: midnight may have changed it while the menu was open.
  if (month != 0) desk_.Show_Month(month, calendar_.View_Year);
}

void Popup_Menus::Popup_Years() {
  const auto show_year = [this](int years_on) {
    desk_.Show_Month(calendar_.View_Month, calendar_.View_Year + years_on);
  };
  switch (Track(presentation::Years_Menu(calendar_.View_Year, calendar_.Compact_On))) {
    case presentation::expand: desk_.Compact_Mode(); break;
    case presentation::two_back: show_year(-2); break;
    case presentation::one_back: show_year(-1); break;
    case presentation::current_month: desk_.Show_Present_Month(); break;
    case presentation::one_on: show_year(+1); break;
    case presentation::two_on: show_year(+2); break;
    default: break;
  }
}

void Popup_Menus::Popup_Start_Day(basic::Int16 index) {
  if (Track(presentation::Start_Day_Menu()) == presentation::set_as_start_day) Set_As_Start_Day(index);
}

void Popup_Menus::Set_As_Start_Day(basic::Int16 index) {
  const basic::Date_Words& words = dates_.Words();
  const basic::Weekday first = dates_.First_Day_Of_Week(stored_.Values);
  const std::string& name = words.Short_Weekday_Name(basic::Weekday_At(index.Value() + 1, first));
  for (const basic::Weekday day : monday_first) {
    if (words.Short_Weekday_Name(day) != name) continue;
    stored_.Values.Start_Day = static_cast<int>(day);
    break;
  }
  desk_.Refresh_Calendar();
  stored_.Save(&settings::Settings::Start_Day);
}

}  // namespace calendar
