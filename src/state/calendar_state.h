// What all windows of the calendar share: the month on view, the day under work, and the flags between them.
#pragma once

#include <cstdint>
#include <string>

#include "basic/int16.h"

namespace state {

struct Calendar_State {
  basic::Int16 View_Year = 0;
  basic::Int16 View_Month = 0;  ///< 1 to 12

  /// The day under work, as day "/" month "/" year without leading zeros: the key of all work on the event file.
  std::string Selected_Date;

  basic::Int16 Current_Box = 0;   ///< the box for which the event editor was last opened
  basic::Int16 Tip_Box = 0;       ///< the box whose balloon was last shown
  bool Mouse_Released = false;    ///< the button went up while a press was being held
  bool Window_Inactive = true;    ///< the inactive colours are on show, or nothing has been painted yet
  bool Alerted_Today = false;     ///< no more alerts today
  bool Compact_On = false;        ///< only the title row is shown
  bool Auto_Compacted = false;    ///< compact mode came from the idle timeout
  std::int64_t Timeout_Date = 0;  ///< when the idle timeout runs out, in whole seconds as Second_Count gives them
  bool Tip_Showing = false;       ///< a balloon is loaded
  bool Settings_Visible = false;  ///< the settings window is open

  basic::Int16 Pack_Box_Style = 0;  ///< the box style that the wallpaper pack gives for this month
  basic::Int16 Pack_Pos = 0;        ///< and the position

  std::int32_t Desktop_Back_Colour = 0;  ///< behind the text of the desktop's icons; -1 for none
  std::int32_t Desktop_Text_Colour = 0;  ///< of the text of the desktop's icons
};

}  // namespace state
