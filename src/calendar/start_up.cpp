#include "calendar/start_up.h"

namespace calendar {

Start_Up::Start_Up(platform::Instances& instances, settings::Stored_Settings& stored,
                   presentation::Arrangement& arrangement, presentation::Colours& colours,
                   presentation::Desktop_Embedding& embedding, presentation::Placement& placement,
                   packs::Wallpaper_Stuff& wallpaper, Month_Grid& grid, Month_View& view, Compact& compact,
                   Date_Watch& date_watch, settings::Run_At_Startup& run_at_startup, platform::Clock& clock,
                   state::Calendar_State& calendar)
    : instances_(instances), stored_(stored), arrangement_(arrangement), colours_(colours), embedding_(embedding),
      placement_(placement), wallpaper_(wallpaper), grid_(grid), view_(view), compact_(compact),
      date_watch_(date_watch), run_at_startup_(run_at_startup), clock_(clock), calendar_(calendar) {}

void Start_Up::Check_For_Multiple() {
  if (instances_.Other_Is_Running()) {
    const platform::Window_Handle older = instances_.Find_Window("Meridex");
    if (older != 0) instances_.Post(older, platform::close_request);
  }
  instances_.Set_Title("Meridex");
}

void Start_Up::Load() {
  Check_For_Multiple();
  stored_.Load_Settings();
  calendar_.Window_Inactive = true;
  if (stored_.Values.Trans_Icons == 1) embedding_.Set_Transparent_Icon_Stuff();
  wallpaper_.Get_Wallpaper_Stuff(stored_.Values.Pack_Name);
  Build_Present_Month();
  placement_.Set_Repos();
  view_.Load_Dates();
  view_.Write_Title();
  grid_.Set_Day_Headers();
  date_watch_.Set_Last_Day_Key();
  colours_.Set_Colours();
  grid_.Mark_Today();
  embedding_.No_ShowDesktop_and_IconColours();
  date_watch_.Dectect_Date_Timer.Enable();
  if (stored_.Values.Auto_Compact == 1) compact_.Update_Timeout();
  run_at_startup_.Move_Run_Value();
}

void Start_Up::Build_Present_Month() {
  grid_.Reset_Boxes();
  const basic::Civil_Date today = basic::Civil_From_Serial(clock_.Now().Day);
  grid_.Setup_Boxes(today.Month, today.Year);
  view_.Go_To_Present_Month();
}

}  // namespace calendar
