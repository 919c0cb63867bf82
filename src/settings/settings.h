// The user's preferences, one variable for each stored key. Keys, types and defaults stand in setting_keys.cpp.
#pragma once

#include <cstdint>
#include <string>

#include "basic/int16.h"

namespace settings {

/// The values of the setting Tooltips.
enum Tip_Kind { no_tips = 0, standard_tips = 1, balloon_tips = 2 };

struct Settings {
  basic::Int16 Style;               ///< box style: 0 thin, 1 square, 2 small
  basic::Int16 Alignment;           ///< window position: 0 to 6, 8, 9 set places, 7 manual
  std::string Pack_Name;            ///< the wallpaper pack, which is also its folder's name
  basic::Int16 Use_Themes;          ///< 1: wallpaper packs are on
  basic::Int16 Use_Theme_Pos;       ///< 1: while packs are on, the pack's position replaces Alignment
  basic::Int16 Use_Theme_Style;     ///< 1: while packs are on, the pack's box style replaces Style
  basic::Int16 Show_Alerts;         ///< 1: on
  basic::Int16 Allow_Dragging;      ///< not 0: the window can be dragged at every position
  bool Bar_Time;                    ///< the title shows the time
  std::string Bar_Time_Format;      ///< time pattern of the title
  std::string Bar_Date_Format;      ///< date pattern of the title
  basic::Int16 Manual_PosX;         ///< left edge of the window after the last drag, twips
  basic::Int16 Manual_PosY;         ///< top edge of the window after the last drag, twips
  bool Use_Other_Display_Mode;      ///< the user's display mode replaces the pack's
  basic::Int16 Other_Display_Mode;  ///< 0 centre, 1 tile, 2 stretch
  basic::Int16 Auto_Compact;        ///< 1: compact mode after the idle time
  basic::Int16 Tooltips;            ///< a Tip_Kind: none, tooltips, or balloons on a held press
  basic::Int16 Settings_Tab;        ///< the tab that the settings window opens on
  basic::Int16 Start_Day;           ///< first weekday: 0 the locale's, 1 Sunday to 7 Saturday
  basic::Int16 Show_Splash;         ///< 1: on
  basic::Int16 Trans_Icons;         ///< 1: the icons' text has no background
  basic::Int16 Timeout_Value;       ///< idle time before compact mode, in the unit below
  basic::Int16 Timeout_Format;      ///< 0 seconds, 1 minutes
  basic::Int16 Carriage_Return;     ///< 1: the Enter key makes a new line in the event editor

  std::int32_t Today;               ///< colours as in toolkit::Colour: back of today's box
  std::int32_t Normal;              ///< back of the other boxes
  std::int32_t Fore;                ///< text of the title row
  std::int32_t Num;                 ///< day numbers
  std::int32_t Text;                ///< event captions
  std::int32_t Back;                ///< back of the window
  std::int32_t Inactive;            ///< text of the title row while the window is inactive
  basic::Int16 Menu_Colour_Source;  ///< 0: the title row takes the desktop's colours, else Back and Fore
};

}  // namespace settings
