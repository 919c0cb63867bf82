// The tab "Wallpaper": the packs beside the program, a look at each month of the chosen one, and the switch that turns packs
// on. The selection of a pack, and each tick, counts as a click whoever makes it.
#pragma once

#include "calendar/desk.h"
#include "packs/pack_browser.h"
#include "packs/pack_lookup.h"
#include "settings_window/style_tab.h"

namespace settings_window {

class Wallpaper_Tab {
 public:
  Wallpaper_Tab(Wallpaper_Page& page, Style_Tab& style_tab, calendar::Desk& desk, settings::Stored_Settings& stored,
                packs::Pack_Lookup& packs, const packs::Pack_Browser& browser);

  // What the tab works on, for the preview of the twelve months.
  Wallpaper_Page& Page;
  Style_Tab& Style;
  const packs::Pack_Browser& Browser;

  /// Adds all whole packs to Packs_Cbo once more and selects the setting's; without that one nothing is selected.
  void Get_Papers();

  /// The three ticks from the settings, and the small calendar's size.
  void Load_Theme_Checks();

  /// The slider's month of the selected pack: its words and its picture. Throws where the month can't be read, as
  /// packs::Get_Paper_Pos and platform::Pictures::Load.
  void Refresh();

  /// The part of the saving that is this tab's.
  void Save_Theme();

 private:
  void Tie_Events();
  [[nodiscard]] bool All_Files(basic::Int16 index) const;
  bool Check_Vaild();
  [[nodiscard]] std::string Get_Details() const;
  void Get_Theme_Pos();
  void Get_Theme_Style();
  void Get_Theme_Display();
  void Get_Theme_Picture();
  void Packs_Cbo_Click();
  void Theme_Use_Chk_Click();
  void Preview_Sli_Change();

  calendar::Desk& desk_;
  settings::Stored_Settings& stored_;
  packs::Pack_Lookup& packs_;
  basic::Int16 old_preview_month_ = 0;  // the slider's month when the user took hold of it
};

}  // namespace settings_window
