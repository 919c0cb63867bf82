// Where the calendar window stands: at one of nine places of the work area, or where the user dragged it.
#pragma once

#include "basic/int16.h"
#include "platform/message_box.h"
#include "platform/screen.h"
#include "presentation/box_style.h"
#include "presentation/main_frm.h"
#include "settings/stored_settings.h"
#include "state/calendar_state.h"

namespace presentation {

constexpr int manual_position = 7;

/// Whole twips.
struct Desktop_Rect {
  std::int32_t Left = 0, Top = 0, Width = 0, Height = 0;
};

/// The work area, in twips or in pixels.
Desktop_Rect GetDesktopRect(platform::Screen& screen, bool in_twips);

class Placement {
 public:
  Placement(Main_Frm& main_frm, platform::Screen& screen, platform::Message_Box& message_box,
            settings::Stored_Settings& stored, const state::Calendar_State& calendar);

  /// Moves the window to a position from 0 to 9; any other number moves nothing. Leaves the window's coordinate unit at
  /// twips.
  void Position_Form(basic::Int16 position);

  /// The same with the position in force: the pack's or the setting's.
  void Position_In_Force();
  [[nodiscard]] basic::Int16 Number_In_Force() const { return presentation::Position_In_Force(stored_.Values, calendar_); }

  /// Notes the present work area. Throws error 6 if a length of it is beyond 32767 twips.
  void Set_Repos();

  /// If a value of the work area has changed, places the window again and notes that value. Others that have changed wait for
  /// the next calls. Throws as Set_Repos.
  void RePosition();

  /// The drag by the title, x and y in twips within it. Throws error 6 for a place beyond 32767 twips.
  void Start_Drag(double x, double y);
  void Drag(double x, double y);
  void End_Drag();

 private:
  /// 16-bit numbers, in twips.
  struct Work_Area {
    basic::Int16 Height, Width, Left, Top;
  };
  /// The pointer within the title and the window's place at the press, alike.
  struct Drag_Point {
    basic::Int16 X, Y, Left, Top;
  };

  [[nodiscard]] bool Dragging_Allowed() const;
  void Keep_Place();
  [[nodiscard]] bool Place_Would_Be_Lost() const;
  void Ask_For_Manual_Position();

  Main_Frm& main_frm_;
  platform::Screen& screen_;
  platform::Message_Box& message_box_;
  settings::Stored_Settings& stored_;
  const state::Calendar_State& calendar_;
  Work_Area saved_work_area_;
  Drag_Point drag_start_;
};

}  // namespace presentation
