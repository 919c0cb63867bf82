// A month of a wallpaper pack, applied: the picture goes to the desktop, and the pack's box style and position for
// the month to the calendar's state. Whoever calls arranges and places the window by them.
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

  /// Does nothing while packs are off. A pack that fails has told so and leaves the desktop as it is; what was taken of
  /// it before the failure stays. Throws error 5, 6 or 13 at a value that isn't three numbers, which ends the program.
  void Get_Wallpaper_Stuff(const std::string& pack_name);

  /// The same with the pack that the settings name.
  void Get_Wallpaper_Stuff() { Get_Wallpaper_Stuff(settings_.Pack_Name); }

  /// The month of a pack, whether packs are on or not, unless its picture lies on the desktop already and the pack wants it
  /// in the middle. Fails as the one above.
  void Preview_Wallpaper_Stuff(const std::string& pack_name, basic::Int16 month);

  /// Any picture, or none for an empty path.
  void Set_Wallpaper(const std::string& path, basic::Int16 display_mode) { wallpaper_.Set_Wallpaper(path, display_mode); }

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
