// Applies the colour settings to the calendar window and its labels.
#pragma once

#include "presentation/main_frm.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace presentation {

class Colours {
 public:
  Colours(Main_Frm& main_frm, const settings::Settings& settings, state::Calendar_State& calendar);

  /// Applies all colours; the title row gets the inactive colour while another window is active.
  void Set_Colours();

  void Colour_Boxes();
  void Colour_Nums();
  void Colour_Texts();

  /// Colours the window's background and the title row, from the settings or from the desktop.
  void Colour_Menus();

  /// The same, with the title row in the inactive colour while another window is active.
  void Colour_Menus_By_Activity();

  /// Colours the title row as inactive; the window's background stays.
  void Colour_Inactive();

  /// Called on each tick: colours the title row again if the window has become active or inactive since the last one.
  void Follow_Active_State();

 private:
  void Colour_Title_Row(toolkit::Colour colour);
  [[nodiscard]] bool Is_Active() const;

  Main_Frm& main_frm_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace presentation
