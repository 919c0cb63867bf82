// The controls of the tab "Wallpaper", which three others of the window's units look at: the packs, the position preview,
// and the preview of the twelve months.
#pragma once

#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/frame.h"
#include "toolkit/image.h"
#include "toolkit/item_list.h"
#include "toolkit/slider.h"

namespace settings_window {

struct Wallpaper_Page {
  explicit Wallpaper_Page(toolkit::Frame& page);

  toolkit::Frame Frame12;
  toolkit::Check_Box Theme_Use_Chk;
  toolkit::Combo_Box Packs_Cbo;  ///< grows by all packs at each activation of the window
  toolkit::Command_Button Preview_Btn;

  toolkit::Frame Frame10;
  toolkit::Image Theme_Preview_Img;
  toolkit::Label Loading_Lbl;
  toolkit::Slider Preview_Sli;  ///< the month
  toolkit::Label Theme_Style_Lbl, Theme_Pos_Lbl, Theme_Display_Lbl;
  toolkit::Check_Box Other_Display_Chk;
  toolkit::Combo_Box Display_Cbo;
  toolkit::List_Box Packs_Dir, Packs_Lst;  ///< hidden: the folders beside the program

 private:
  void Place();
  void Write_Captions();
};

/// Whether a box is ticked.
inline bool Ticked(const toolkit::Check_Box& box) { return box.Value == 1; }

}  // namespace settings_window
