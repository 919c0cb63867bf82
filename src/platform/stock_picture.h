// The pictures that the program carries in its resources.
#pragma once

namespace platform {

enum class Stock_Picture {
  None,
  Program_Icon,      ///< the splash's and the About page's
  Information_Icon,  ///< 16 by 16 pixels, the balloon's
  Clear,             ///< this and the next three: 13 by 13 pixels, the day box menu's
  File,
  Settings,
  Exit,
  Monitor,         ///< 184 by 169 pixels, around the desktop on which the place of the calendar is shown
  Small_Calendar,  ///< 164 by 49 pixels, the calendar on that desktop
  Import_Data,     ///< this and the rest: 32 by 32 pixels, on buttons
  Import_Configuration,
  Import_Csv,
  Export_Data,
  Export_Configuration,
  Export_Text,
  Export_Csv,
};

}  // namespace platform
