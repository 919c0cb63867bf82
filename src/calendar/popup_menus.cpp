#include "calendar/popup_menus.h"

#include "presentation/menus.h"

namespace calendar {

namespace {

constexpr basic::Weekday monday_first[] = {
    basic::Weekday::Monday, basic::Weekday::Tuesday,  basic::Weekday::Wednesday, basic::Weekday::Thursday,
    basic::Weekday::Friday, basic::Weekday::Saturday, basic::Weekday::Sunday,
};

}  // namespace

Popup_Menus::Popup_Menus(platform::Popup_Menu& menu, presentation::Arrangement& arrangement, Month_Grid& grid,
                         Month_View& view, Compact& compact, Edit_Box& edit_box, events::Event_File& event_file,
                         platform::Clock& clock, platform::Locale& locale, settings::Stored_Settings& stored,
                         state::Calendar_State& calendar)
    : menu_(menu), arrangement_(arrangement), grid_(grid), view_(view), compact_(compact), edit_box_(edit_box),
      event_file_(event_file), clock_(clock), locale_(locale), stored_(stored), calendar_(calendar) {}

int Popup_Menus::Track(const std::vector<platform::Menu_Item>& items) {
  return menu_.Track(arrangement_.Main_Frm.Handle(), items);
}

void Popup_Menus::Popup_Menu(basic::Int16 index) {
  switch (Track(presentation::Box_Menu(arrangement_))) {
    case presentation::clear_event: Clear(index); break;
    case presentation::edit_event: edit_box_.Open(index); break;
    case presentation::exit_program: Exit(); break;
    default: break;
  }
}

void Popup_Menus::Clear(basic::Int16 index) {
  calendar_.Selected_Date = events::Date_Key(grid_.Day_Of_Box(index), calendar_.View_Month, calendar_.View_Year);
  event_file_.Load_File();
  event_file_.Check_For_Pre("");
  arrangement_.Box_Caption_Lbl[index].Caption = "";
  arrangement_.Box_Caption_Lbl[index].ToolTipText = "";
  arrangement_.Box_Lbl[index].ToolTipText = "";
  arrangement_.Box_Lbl[index].FontUnderline = false;
}

void Popup_Menus::Popup_Months() {
  const basic::Civil_Date today = basic::Civil_From_Serial(clock_.Now().Day);
  const int month =
      Track(presentation::Months_Menu(calendar_.View_Month, calendar_.View_Year, today.Month, today.Year));
  if (month == 0) return;
  calendar_.View_Month = month;
  view_.Refresh_Calendar();
}

void Popup_Menus::Popup_Years() {
  switch (Track(presentation::Years_Menu(calendar_.View_Year, calendar_.Compact_On))) {
    case presentation::expand: compact_.Which_Month_Lbl_DblClick(); return;
    case presentation::two_back: calendar_.View_Year -= 2; break;
    case presentation::one_back: calendar_.View_Year -= 1; break;
    case presentation::current_month: view_.Go_To_Present_Month(); break;
    case presentation::one_on: calendar_.View_Year += 1; break;
    case presentation::two_on: calendar_.View_Year += 2; break;
    default: return;
  }
  view_.Refresh_Calendar();
}

void Popup_Menus::Popup_Start_Day(basic::Int16 index) {
  if (Track(presentation::Start_Day_Menu()) == presentation::set_as_start_day) Set_As_Start_Day(index);
}

void Popup_Menus::Set_As_Start_Day(basic::Int16 index) {
  const basic::Date_Words& words = locale_.Words();
  const basic::Weekday first = First_Day_Of_Week(stored_.Values, locale_);
  const std::string& name = words.Short_Weekday_Name(basic::Weekday_At(index.Value() + 1, first));
  for (const basic::Weekday day : monday_first) {
    if (words.Short_Weekday_Name(day) != name) continue;
    stored_.Values.Start_Day = static_cast<int>(day);
    break;
  }
  view_.Refresh_Calendar();
  stored_.Save(&settings::Settings::Start_Day);
}

}  // namespace calendar
