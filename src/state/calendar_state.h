// What all windows of the calendar share: the month on view, the selected day, and the flags that they exchange.
#pragma once

#include <cstdint>
#include <string>

#include "basic/int16.h"

namespace state {

struct Calendar_State {
  basic::Int16 View_Year = 0;
  basic::Int16 View_Month = 0;  ///< 1 to 12

  /// The selected day, as day "/" month "/" year without leading zeros: the key for all work on the event file.
  std::string Selected_Date;

  basic::Int16 Current_Box = 0;   ///< the box for which the event editor was last opened
  basic::Int16 Tip_Box = 0;       ///< the box whose balloon was last shown
  bool Mouse_Released = false;    ///< the button was released while a press was being held
  bool Window_Inactive = true;    ///< the inactive colours are shown, or nothing has been painted yet
  bool Alerted_Today = false;     ///< no more alerts today
  bool Compact_On = false;        ///< only the title row is shown
  bool Auto_Compacted = false;    ///< compact mode came from the idle timeout
  std::int64_t Timeout_Date = 0;  ///< when the idle timeout runs out, in whole seconds as Second_Count gives them
  bool Tip_Showing = false;       ///< a balloon is loaded
  bool Settings_Visible = false;  ///< the settings window is open

  basic::Int16 Pack_Box_Style = 0;  ///< the box style that the wallpaper pack gives for this month
  basic::Int16 Pack_Pos = 0;        ///< the window position that it gives

  std::int32_t Desktop_Back_Colour = 0;  ///< behind the text of the desktop's icons; platform::no_colour for none
  std::int32_t Desktop_Text_Colour = 0;  ///< of the text of the desktop's icons
};

}  // namespace state
