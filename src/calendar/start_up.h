// The start of the program: everything that the load of the calendar window does, in its one fixed order.
#pragma once

#include "calendar/date_watch.h"
#include "calendar/splash_frm.h"
#include "platform/instances.h"
#include "settings/run_at_startup.h"

namespace calendar {

class Start_Up {
 public:
  Start_Up(platform::Instances& instances, settings::Stored_Settings& stored, presentation::Arrangement& arrangement,
           presentation::Colours& colours, presentation::Desktop_Embedding& embedding,
           presentation::Placement& placement, packs::Wallpaper_Stuff& wallpaper, Month_Grid& grid, Month_View& view,
           Compact& compact, Date_Watch& date_watch, settings::Run_At_Startup& run_at_startup, platform::Clock& clock,
           state::Calendar_State& calendar);

  /// The load. Throws error 6 or 13 at a bad stored setting, before anything is on the screen.
  void Load();

 private:
  /// The newest start wins: an older instance is asked to close, and goes in its own time.
  void Check_For_Multiple();
  void Build_Present_Month();

  platform::Instances& instances_;
  settings::Stored_Settings& stored_;
  presentation::Arrangement& arrangement_;
  presentation::Colours& colours_;
  presentation::Desktop_Embedding& embedding_;
  presentation::Placement& placement_;
  packs::Wallpaper_Stuff& wallpaper_;
  Month_Grid& grid_;
  Month_View& view_;
  Compact& compact_;
  Date_Watch& date_watch_;
  settings::Run_At_Startup& run_at_startup_;
  platform::Clock& clock_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
