#include "calendar/date_watch.h"

#include "basic/date_pattern.h"

namespace calendar {

namespace {

constexpr int tick_interval = 100;  // milliseconds

}  // namespace

Date_Watch::Date_Watch(toolkit::Backend& backend, presentation::Arrangement& arrangement,
                       presentation::Colours& colours, presentation::Desktop_Embedding& embedding,
                       presentation::Placement& placement, Compact& compact, Month_View& view, Month_Grid& grid,
                       packs::Wallpaper_Stuff& wallpaper, platform::Clock& clock, platform::Locale& locale,
                       const settings::Settings& settings, state::Calendar_State& calendar)
    : Dectect_Date_Timer(backend, "Dectect_Date_Timer", tick_interval), arrangement_(arrangement), colours_(colours),
      embedding_(embedding), placement_(placement), compact_(compact), view_(view), grid_(grid), wallpaper_(wallpaper),
      clock_(clock), locale_(locale), settings_(settings), calendar_(calendar) {
  Dectect_Date_Timer.On_Tick = [this] { Tick(); };
}

void Date_Watch::Set_Last_Day_Key() {
  const basic::Civil_Date today = basic::Civil_From_Serial(clock_.Now().Day);
  last_day_key_.clear();
  basic::Append_Number(last_day_key_, today.Day);
  last_day_key_ += ':';
  basic::Append_Number(last_day_key_, today.Month);
  last_day_key_ += ':';
  basic::Append_Number(last_day_key_, today.Year);
}

void Date_Watch::Tick() {
  Follow_Active_State();
  if (settings_.Trans_Icons == 1) embedding_.Keep_Desktop_Text_Clear();
  if (settings_.Auto_Compact == 1) compact_.Auto_Compact_Check();
  placement_.RePosition();
  view_.Write_Title();
  if (Present_Day_Key() != last_day_key_) Begin_New_Day();
}

void Date_Watch::Follow_Active_State() {
  if (calendar_.Window_Inactive && Is_Active()) {
    colours_.Colour_Menus();
    calendar_.Window_Inactive = false;
  }
  if (!calendar_.Window_Inactive && !Is_Active()) {
    colours_.Colour_Inactive();
    calendar_.Window_Inactive = true;
  }
}

bool Date_Watch::Is_Active() { return arrangement_.Main_Frm.System().Active_Form() == &arrangement_.Main_Frm; }

const std::string& Date_Watch::Present_Day_Key() {
  day_key_.clear();
  basic::Append_Date(day_key_, clock_.Now(), "d:m:yyyy", locale_.Words());
  return day_key_;
}

void Date_Watch::Begin_New_Day() {
  calendar_.Alerted_Today = false;
  view_.Go_To_Present_Month();
  view_.Write_Title();
  grid_.Set_Day_Headers();
  // Before the wallpaper: its messages let further ticks in, and the day begins once.
  last_day_key_ = Present_Day_Key();
  wallpaper_.Get_Wallpaper_Stuff(settings_.Pack_Name);
  if (!calendar_.Compact_On) {
    grid_.Setup_Boxes(calendar_.View_Month, calendar_.View_Year);
    colours_.Set_Colours();
    grid_.Mark_Today();
  }
  // Last, so that the new month stands painted while the alert of the new day is open.
  view_.Load_Dates();
}

}  // namespace calendar
