// The colour settings, carried onto the calendar window's labels.
#pragma once

#include "presentation/main_frm.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace presentation {

class Colours {
 public:
  Colours(Main_Frm& main_frm, const settings::Settings& settings, state::Calendar_State& calendar);

  /// Paints everything; leaves the title row in the inactive colour while another window is active.
  void Set_Colours();

  void Colour_Boxes();
  void Colour_Nums();
  void Colour_Texts();

  /// The window's back colour and the title row, from the settings or from the desktop.
  void Colour_Menus();

  /// The title row as inactive; the back colour stays.
  void Colour_Inactive();

  /// On each tick: paints the title row anew if the window has become active or inactive since the last.
  void Follow_Active_State();

 private:
  void Colour_Title_Row(toolkit::Colour colour);
  [[nodiscard]] bool Is_Active() const;

  Main_Frm& main_frm_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace presentation
