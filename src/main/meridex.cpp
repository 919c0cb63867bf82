#include "main/meridex.h"

// The calls that run upwards are the functions handed in here: the splash for the embedding, the idle time for the editor
// and the balloons, the month for the balloons, and the settings window and the program's end for the desk.
Meridex::Meridex(toolkit::Backend& backend, const platform::System& system)
    : loop_(system.Loop), waits_(system.Loop, system.Clock), dates_(system.Clock, system.Locale),
      channel_(system.Files), stored_(system.Store), registry_(system.Registry, system.Profiles, system.Files),
      run_at_startup_(registry_, system.Files), set_wallpaper_(system.Registry, system.Wallpaper),
      pack_lookup_(system.Files, channel_, system.Pictures, system.Message_Box, stored_, set_wallpaper_),
      wallpaper_(pack_lookup_, set_wallpaper_, registry_, system.Clock, stored_.Values, calendar_),
      pack_browser_(system.Files, system.Pictures, registry_),
      event_file_(system.Files, channel_, system.Message_Box, calendar_, stored_.Desktop),

      main_frm_(backend), placement_(main_frm_, system.Screen, system.Message_Box, stored_, calendar_),
      colours_(main_frm_, stored_.Values, calendar_), splash_(backend, main_frm_, [this] { Quit_After_Last_Window(); }),
      embedding_(system.Shell, main_frm_, stored_.Values, calendar_, [this] { splash_.Show(); }),
      editor_(backend, main_frm_, event_file_, stored_.Values, calendar_, [this] { desk_.Idle_Restart(); }),

      alerts_(dates_, system.Message_Box, main_frm_.Window, stored_.Values, calendar_),
      grid_(main_frm_, placement_, alerts_, dates_, stored_.Values, calendar_),
      spoken_month_(main_frm_, grid_, dates_, stored_.Values), title_(main_frm_, dates_, stored_.Values, calendar_),
      view_(grid_, title_, event_file_, colours_, dates_, calendar_),
      compact_(main_frm_, placement_, view_, dates_, stored_.Values, calendar_),
      edit_box_(editor_, event_file_, grid_, dates_, system.Message_Box, calendar_),
      desk_(view_, grid_, compact_, edit_box_, placement_, wallpaper_,
            {[this] { Exit(); }, [this] { settings_opener_.Show(); }}),
      balloons_(backend, system.Screen, main_frm_, calendar_,
                {[this] { desk_.Rebuild_Month(); }, [this] { desk_.Idle_Restart(); }}),
      menus_(system.Popup_Menu, main_frm_, desk_, dates_, stored_, calendar_),
      hold_(desk_, event_file_, balloons_, waits_, stored_.Values, calendar_),
      box_mouse_(main_frm_, placement_, desk_, menus_, hold_),
      function_keys_(main_frm_, desk_, dates_, event_file_, system.Message_Box, stored_),
      date_watch_(backend, desk_, embedding_, dates_, stored_.Desktop),
      start_up_(system.Instances, stored_, desk_, embedding_, date_watch_, run_at_startup_),
      settings_opener_(backend, system,
                       {desk_, dates_, date_watch_, main_frm_, event_file_, pack_lookup_, pack_browser_, stored_,
                        run_at_startup_, balloons_, waits_, calendar_, channel_, csv_columns_}) {
  system.Instances.On_Close_Request = [this] { Exit(); };
  main_frm_.Window.On_Unload = [this] { date_watch_.Dectect_Date_Timer.Disable(); };
  main_frm_.Window.On_Close = [this] { Exit(); };
}

void Meridex::Start() {
  main_frm_.Window.Load();
  start_up_.Load();
  main_frm_.Window.Show(false);
}

void Meridex::Exit() {
  editor_.Window.Unload();
  settings_opener_.Unload();
  balloons_.Unload_All();
  main_frm_.Window.Unload();
  Quit_After_Last_Window();
}

void Meridex::Quit_After_Last_Window() {
  if (!main_frm_.Window.Loaded() && !splash_.Window.Loaded()) loop_.Quit();
}
