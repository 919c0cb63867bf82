#include "calendar/start_up.h"

namespace calendar {

Start_Up::Start_Up(platform::Instances& instances, settings::Stored_Settings& stored, Desk& desk,
                   presentation::Desktop_Embedding& embedding, Date_Watch& date_watch,
                   settings::Run_At_Startup& run_at_startup)
    : instances_(instances), stored_(stored), desk_(desk), embedding_(embedding), date_watch_(date_watch),
      run_at_startup_(run_at_startup) {}

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
  if (stored_.Values.Trans_Icons == 1) embedding_.Set_Transparent_Icon_Stuff();
  desk_.Draw_First_Month();
  date_watch_.Set_Last_Day_Key();
  desk_.Paint();
  embedding_.No_ShowDesktop_and_IconColours();
  date_watch_.Dectect_Date_Timer.Enable();
  desk_.Start_Idle_Time();
  run_at_startup_.Move_Run_Value();
}

}  // namespace calendar
