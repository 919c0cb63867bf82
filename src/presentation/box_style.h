// Which box style and which window position are in force: those of the settings or those of the wallpaper pack.
#pragma once

#include "settings/settings.h"
#include "state/calendar_state.h"

namespace presentation {

enum Box_Style { thin_box = 0, square_box = 1, small_box = 2 };

/// Returns true if the setting is the small box and no pack sets the style. A small box that a pack sets doesn't count.
bool Small_Style(const settings::Settings& settings);

/// The box style in force, for the layout of the grid.
basic::Int16 Style_In_Force(const settings::Settings& settings, const state::Calendar_State& calendar);

/// The window position in force.
basic::Int16 Position_In_Force(const settings::Settings& settings, const state::Calendar_State& calendar);

}  // namespace presentation
