// The tick of the calendar, ten times a second for as long as it lives: the window's active state, the icons' text, the
// idle time, the work area, the title, and once a day the new day.
#pragma once

#include "calendar/compact.h"
#include "packs/wallpaper_stuff.h"
#include "presentation/desktop_embedding.h"
#include "toolkit/timer.h"

namespace calendar {

class Date_Watch {
 public:
  Date_Watch(toolkit::Backend& backend, presentation::Arrangement& arrangement, presentation::Colours& colours,
             presentation::Desktop_Embedding& embedding, presentation::Placement& placement, Compact& compact,
             Month_View& view, Month_Grid& grid, packs::Wallpaper_Stuff& wallpaper, platform::Clock& clock,
             platform::Locale& locale, const settings::Settings& settings, state::Calendar_State& calendar);

  toolkit::Timer Dectect_Date_Timer;

  /// Notes the present day as the one last seen, in the load.
  void Set_Last_Day_Key();

 private:
  void Tick();
  void Follow_Active_State();
  [[nodiscard]] bool Is_Active();

  /// The present day by the pattern that the key has.
  const std::string& Present_Day_Key();
  void Begin_New_Day();

  presentation::Arrangement& arrangement_;
  presentation::Colours& colours_;
  presentation::Desktop_Embedding& embedding_;
  presentation::Placement& placement_;
  Compact& compact_;
  Month_View& view_;
  Month_Grid& grid_;
  packs::Wallpaper_Stuff& wallpaper_;
  platform::Clock& clock_;
  platform::Locale& locale_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
  std::string last_day_key_;
  std::string day_key_;
};

}  // namespace calendar
