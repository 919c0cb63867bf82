// Applies a month of a wallpaper pack: its picture goes to the desktop, its box style and position into the calendar's
// state. The caller lays out and places the window by them.
#pragma once

#include <string>

#include "packs/pack_lookup.h"
#include "packs/set_wallpaper_mod.h"
#include "platform/clock.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace packs {

class Wallpaper_Stuff {
 public:
  Wallpaper_Stuff(Pack_Lookup& packs, Set_Wallpaper_Mod& wallpaper, settings::Registry& registry,
                  platform::Clock& clock, const settings::Settings& settings, state::Calendar_State& state)
      : packs_(packs), wallpaper_(wallpaper), registry_(registry), clock_(clock), settings_(settings), state_(state) {}

  /// Applies the present month of a pack; does nothing while packs are off. A failure of the pack is reported in a
  /// message box, and no picture is set; box style and position stay if they were read before the failure. Throws error
  /// 5, 6 or 13 if the month's value isn't three numbers, which ends the program.
  void Get_Wallpaper_Stuff(const std::string& pack_name);

  /// The same with the pack that the settings name.
  void Get_Wallpaper_Stuff() { Get_Wallpaper_Stuff(settings_.Pack_Name); }

  /// Applies any month (1 to 12) of a pack, whether packs are on or not. A picture that the pack centres isn't set
  /// again if it is on the desktop already. Fails as the one above.
  void Preview_Wallpaper_Stuff(const std::string& pack_name, basic::Int16 month);

  /// Sets any picture; an empty path removes the picture.
  void Set_Wallpaper(const std::string& path, basic::Int16 display_mode) {
    wallpaper_.Set_Wallpaper(path, display_mode);
  }

 private:
  void Take_Style_And_Position(const std::string& value);
  void Apply(const std::string& path, const std::string& value);

  Pack_Lookup& packs_;
  Set_Wallpaper_Mod& wallpaper_;
  settings::Registry& registry_;
  platform::Clock& clock_;
  const settings::Settings& settings_;
  state::Calendar_State& state_;
};

}  // namespace packs
