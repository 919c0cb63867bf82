// The day boxes that the pages show as examples.
#pragma once

#include "toolkit/label.h"

namespace settings_window {

/// Gives a label the ground, the border and the font of the calendar's day boxes.
void Look_Like_A_Day_Box(toolkit::Label& box);

}  // namespace settings_window
