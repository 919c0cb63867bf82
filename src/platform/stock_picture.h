// The pictures that the program carries in its resources.
#pragma once

namespace platform {

enum class Stock_Picture {
  None,
  Program_Icon,      ///< the splash's
  Information_Icon,  ///< 16 by 16 pixels, the balloon's
  Clear,             ///< this and the rest: 13 by 13 pixels, the day box menu's
  File,
  Settings,
  Exit,
};

}  // namespace platform
