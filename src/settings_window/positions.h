// The nine places of the calendar on the desktop, as the settings window names them and as its two sliders show them.
#pragma once

#include <string_view>

#include "basic/int16.h"

namespace settings_window {

struct Slider_Places {
  int Horizontal, Vertical;  ///< 0 left, 1 centre, 2 right; 0 top, 1 middle, 2 bottom
};

/// The name of a position number; "" for one that has none.
std::string_view Position_Name(basic::Int16 number);

/// The places of the sliders for a position number; nullptr for one that has none.
const Slider_Places* Places_Of(basic::Int16 number);

/// The position number of two places from 0 to 2.
basic::Int16 Position_Of(const Slider_Places& places);

}  // namespace settings_window
