// Where the calendar window is: at one of nine places of the work area, or where the user dragged it.
#pragma once

#include <cstdint>
#include <optional>

#include "basic/int16.h"
#include "platform/message_box.h"
#include "platform/screen.h"
#include "presentation/box_style.h"
#include "presentation/main_frm.h"
#include "settings/stored_settings.h"
#include "state/calendar_state.h"

namespace presentation {

constexpr int manual_position = 7;

/// In whole twips or in whole pixels.
struct Desktop_Rect {
  std::int32_t Left = 0, Top = 0, Width = 0, Height = 0;
};

/// The work area of the screen, in twips or else in pixels.
Desktop_Rect GetDesktopRect(platform::Screen& screen, bool in_twips);

class Placement {
 public:
  Placement(Main_Frm& main_frm, platform::Screen& screen, platform::Message_Box& message_box,
            settings::Stored_Settings& stored, const state::Calendar_State& calendar);

  /// Moves the window to a position from 0 to 9, as the setting Alignment numbers them; any other number moves nothing.
  /// Leaves the window's coordinate unit at twips.
  void Position_Form(basic::Int16 position);

  /// The same with the position in force: the pack's or the setting's.
  void Position_In_Force();
  [[nodiscard]] basic::Int16 Pack_Pos() const { return calendar_.Pack_Pos; }
  [[nodiscard]] basic::Int16 Number_In_Force() const {
    return presentation::Position_In_Force(stored_.Values, calendar_);
  }

  /// Remembers the present work area. Throws Work_Area_Too_Large if one of its four values is beyond 16 bits, in twips,
  /// and the user hasn't consented to that.
  void Set_Repos();

  /// Called on each tick: if one of the work area's four values has changed, places the window again and remembers that
  /// value. Other changed values wait for the next calls. Throws as Set_Repos.
  void RePosition();

  /// The drag by the title; x and y are twips within the title. Start_Drag and End_Drag throw
  /// Work_Area_Too_Large for a place of the window beyond 16 bits, in twips, without that consent. End_Drag may show a
  /// message box.
  void Start_Drag(double x, double y);
  void Drag(double x, double y);
  void End_Drag();

 private:
  /// At the press: the pointer within the title, and the place of the window. In twips.
  struct Drag_Point {
    std::int32_t X = 0, Y = 0, Left = 0, Top = 0;
  };

  /// Lets a number of twips through. Throws Work_Area_Too_Large if it is beyond 16 bits without the user's consent.
  [[nodiscard]] std::int32_t Allowed(std::int32_t twips) const;

  [[nodiscard]] bool Dragging_Allowed() const;
  void Keep_Place();
  [[nodiscard]] bool Place_Would_Be_Lost() const;
  void Ask_For_Manual_Position();

  Main_Frm& main_frm_;
  platform::Screen& screen_;
  platform::Message_Box& message_box_;
  settings::Stored_Settings& stored_;
  const state::Calendar_State& calendar_;
  Desktop_Rect saved_work_area_;  // in twips
  /// The work area all of whose values are saved. The tick compares it first, since it stays the same for days.
  std::optional<platform::Pixel_Area> followed_area_;
  Drag_Point drag_start_;
};

}  // namespace presentation
