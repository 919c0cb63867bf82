// The colour settings, carried onto the calendar window's labels.
#pragma once

#include "presentation/arrangement.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace presentation {

class Colours {
 public:
  Colours(Arrangement& arrangement, const settings::Settings& settings, const state::Calendar_State& calendar);

  /// Paints everything; leaves the title row in the inactive colour while another window is active.
  void Set_Colours();

  void Colour_Boxes();
  void Colour_Nums();
  void Colour_Texts();

  /// The window's back colour and the title row, from the settings or from the desktop.
  void Colour_Menus();

  /// The title row as inactive; the back colour stays.
  void Colour_Inactive();

 private:
  void Colour_Title_Row(toolkit::Colour colour);

  Arrangement& arrangement_;
  const settings::Settings& settings_;
  const state::Calendar_State& calendar_;
};

}  // namespace presentation
