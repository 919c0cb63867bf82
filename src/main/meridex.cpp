#include "main/meridex.h"

#include "tooltips/clear_tooltips.h"

Meridex::Meridex(toolkit::Backend& backend, const platform::System& system)
    : loop_(system.Loop), instances_(system.Instances), channel_(system.Files), stored_(system.Store),
      registry_(system.Registry, system.Profiles, system.Files), run_at_startup_(registry_, system.Files),
      set_wallpaper_(system.Registry, system.Wallpaper),
      pack_lookup_(system.Files, channel_, system.Pictures, system.Message_Box, stored_, set_wallpaper_),
      wallpaper_(pack_lookup_, set_wallpaper_, system.Clock, stored_.Values, calendar_), arrangement_(backend),
      placement_(arrangement_, system.Screen, system.Message_Box, stored_, calendar_),
      caption_fitting_(arrangement_, stored_.Values, calendar_), colours_(arrangement_, stored_.Values, calendar_),
      embedding_(system.Shell, arrangement_, stored_.Values, calendar_),
      editor_(backend, arrangement_, caption_fitting_, event_file_, stored_.Values, calendar_),
      event_file_(system.Files, channel_, system.Message_Box, calendar_, editor_), splash_(backend, arrangement_),
      alerts_(system.Clock, system.Locale, system.Message_Box, arrangement_.Main_Frm, stored_.Values, calendar_),
      grid_(arrangement_, placement_, caption_fitting_, alerts_, system.Clock, system.Locale, stored_.Values,
            calendar_),
      title_(system.Clock, system.Locale, stored_.Values, calendar_),
      view_(arrangement_, grid_, title_, event_file_, alerts_, colours_, system.Clock, calendar_),
      compact_(arrangement_, placement_, view_, editor_, system.Clock, stored_.Values, calendar_),
      edit_box_(editor_, event_file_, grid_, system.Locale, system.Message_Box, calendar_),
      menus_(system.Popup_Menu, arrangement_, grid_, view_, compact_, edit_box_, event_file_, system.Clock,
             system.Locale, stored_, calendar_),
      box_mouse_(arrangement_, placement_, compact_, view_, grid_, edit_box_, menus_, event_file_, system.Loop,
                 system.Clock, stored_.Values, calendar_),
      function_keys_(arrangement_, placement_, compact_, view_, grid_, event_file_, system.Message_Box, system.Clock,
                     system.Locale, stored_, calendar_),
      balloons_(backend, system.Screen, system.Clock, arrangement_, calendar_),
      date_watch_(backend, arrangement_, colours_, embedding_, placement_, compact_, view_, grid_, wallpaper_,
                  system.Clock, system.Locale, stored_.Values, calendar_),
      start_up_(system.Instances, stored_, arrangement_, colours_, embedding_, placement_, wallpaper_, grid_, view_,
                compact_, date_watch_, run_at_startup_, system.Clock, calendar_) {
  Tie();
}

void Meridex::Tie() {
  event_file_.Clear_Tooltips = [this] { tooltips::Clear_Tooltips(arrangement_); };
  event_file_.Enter_Date = [this](std::string_view line) { grid_.Enter_Date(line); };
  editor_.Idle_Restart = [this] { compact_.Idle_Restart(); };
  embedding_.Show_Splash = [this] { splash_.Show(); };
  balloons_.Calls.Rebuild_Month = [this] { view_.Redraw_Grid(); };
  balloons_.Calls.Idle_Restart = [this] { compact_.Idle_Restart(); };
  balloons_.Day_Of_Box = [this](basic::Int16 box) { return grid_.Day_Of_Box(box); };
  box_mouse_.Balloon_Tooltip = [this](const std::string& text) { balloons_.Balloon_Tooltip(text); };
  menus_.Exit = [this] { Exit(); };
  instances_.On_Close_Request = [this] { Exit(); };
  arrangement_.Main_Frm.On_Unload = [this] { date_watch_.Dectect_Date_Timer.Disable(); };
  arrangement_.Main_Frm.On_Close = [this] { Exit(); };
  splash_.On_Closed = [this] { Quit_Behind_Last_Window(); };
}

void Meridex::Start() {
  arrangement_.Main_Frm.Load();
  start_up_.Load();
  arrangement_.Main_Frm.Show(false);
}

void Meridex::Exit() {
  editor_.Window.Unload();
  balloons_.Unload_All();
  arrangement_.Main_Frm.Unload();
  Quit_Behind_Last_Window();
}

void Meridex::Quit_Behind_Last_Window() {
  if (!arrangement_.Main_Frm.Loaded() && !splash_.Window.Loaded()) loop_.Quit();
}
