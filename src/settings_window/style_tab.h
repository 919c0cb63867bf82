// The tab "Style & Position": three examples of the box styles, and a small screen with a small calendar on it, which two
// sliders bring to one of nine places. It changes its controls alone; Save_Theme carries them into the settings.
#pragma once

#include "calendar/desk.h"
#include "packs/pack_browser.h"
#include "packs/pack_lookup.h"
#include "settings_window/wallpaper_page.h"
#include "toolkit/option_button.h"

namespace settings_window {

class Style_Tab {
 public:
  Style_Tab(toolkit::Frame& page, Wallpaper_Page& packs_page, calendar::Desk& desk, settings::Stored_Settings& stored,
            packs::Pack_Lookup& packs, const packs::Pack_Browser& browser);

  toolkit::Frame Frame4;
  toolkit::Check_Box Theme_Pos_Chk;
  toolkit::Slider Vertical_Sli, Horizontal_Sli;
  toolkit::Option_Button Pos_Manual_Opt, Pos_Set_Opt;
  toolkit::Image Preview_Screen_Img, Pos_Preview_Img, Box_Preview_Img;

  toolkit::Frame Frame6;
  toolkit::Check_Box Theme_Style_Chk;
  toolkit::Option_Button Style3_Opt, Style1_Opt, Style2_Opt;
  toolkit::Label Example5_Lbl, Example1_Lbl, Example2_Lbl, Example4_Lbl, Example3_Lbl;

  /// The position number last shown for a pack's month.
  basic::Int16 Shown_Pack_Pos = 0;

  /// Style and position from the settings.
  void Load_Settings();

  /// The desktop's picture behind the small calendar; where there is none that can be shown, the old one stays.
  void Load_Pos_Wallpaper();

  /// Gives the small calendar the size of the style in force on this tab, or hides it at a place that can't be shown.
  /// Throws as packs::Get_Paper_BoxStyle where a pack's month can't be read.
  void Style_Preview();

  void Place_Box_From_Sliders() { Place_Box_Preview(Get_Set_Position()); }
  void Place_Box_Preview(basic::Int16 position);

  /// At the pack's place or at that of the sliders.
  void Place_Box();

  /// What the options stand for. Of the style the number of the setting, or what is given where none is on.
  [[nodiscard]] basic::Int16 Chosen_Style(basic::Int16 none) const;
  [[nodiscard]] basic::Int16 Chosen_Position() const;

  /// The part of the saving that is this tab's: applies style and position to the calendar too.
  void Save_Theme();

 private:
  void Make_Position_Frame();
  void Make_Style_Frame();
  void Make_Examples();
  void Tie_Events();
  void Tie_Position_Events();

  [[nodiscard]] basic::Int16 Get_Set_Position() const;
  void Setup_Set_Position(basic::Int16 position);
  void Slider_Text(toolkit::Slider& slider) const;
  void Slider_Moved(toolkit::Slider& slider);
  void Size_Box_Preview(int size);
  [[nodiscard]] int Pack_Size();
  [[nodiscard]] int Option_Size() const;
  void Large_Preview();
  void Small_Preview();
  void Show_Sliders(bool shown);

  void Style_Opt_Click();
  void Position_Opt_Click();
  void Theme_Pos_Chk_Click();
  void Theme_Style_Chk_Click();
  void Save_Style();
  void Save_Position();

  Wallpaper_Page& packs_page_;
  calendar::Desk& desk_;
  settings::Stored_Settings& stored_;
  packs::Pack_Lookup& packs_;
  const packs::Pack_Browser& browser_;
};

}  // namespace settings_window
