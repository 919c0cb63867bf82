#include "settings_window/wallpaper_page.h"

namespace settings_window {

Wallpaper_Page::Wallpaper_Page(toolkit::Frame& page)
    : Frame12(page, "Frame12"), Theme_Use_Chk(Frame12, "Theme_Use_Chk"), Packs_Cbo(Frame12, "Packs_Cbo"),
      Preview_Btn(Frame12, "Preview_Btn"), Frame10(page, "Frame10"), Theme_Preview_Img(Frame10, "Theme_Preview_Img"),
      Loading_Lbl(Frame10, "Loading_Lbl"), Preview_Sli(Frame10, "Preview_Sli", 1, 12, toolkit::Slide::Across),
      Theme_Style_Lbl(Frame10, "Theme_Style_Lbl"), Theme_Pos_Lbl(Frame10, "Theme_Pos_Lbl"),
      Theme_Display_Lbl(Frame10, "Theme_Display_Lbl"), Other_Display_Chk(Frame10, "Other_Display_Chk"),
      Display_Cbo(Frame10, "Display_Cbo"), Packs_Dir(Frame10, "Packs_Dir"), Packs_Lst(Frame10, "Packs_Lst") {
  Place();
  Write_Captions();
  for (toolkit::Control* const later :
       {static_cast<toolkit::Control*>(&Packs_Cbo), static_cast<toolkit::Control*>(&Preview_Btn),
        static_cast<toolkit::Control*>(&Display_Cbo)})
    later->Enabled = false;
  for (toolkit::Control* const hidden :
       {static_cast<toolkit::Control*>(&Loading_Lbl), static_cast<toolkit::Control*>(&Packs_Dir),
        static_cast<toolkit::Control*>(&Packs_Lst)})
    hidden->Visible = false;
}

void Wallpaper_Page::Place() {
  Frame12.Place({0, 0, 5145, 1140});
  Theme_Use_Chk.Place({180, 225, 4830, 285});
  Packs_Cbo.Place({135, 585, 4020, 390});
  Preview_Btn.Place({4230, 585, 780, 375});
  Frame10.Place({0, 1170, 5145, 2670});
  Theme_Preview_Img.Place({135, 225, 2355, 1635});
  Theme_Preview_Img.Fixed_Border = true;
  Loading_Lbl.Place({180, 855, 2265, 420});
  Preview_Sli.Place({135, 1980, 2355, 555});
  Theme_Style_Lbl.Place({2655, 270, 2310, 330});
  Theme_Pos_Lbl.Place({2655, 675, 2310, 330});
  Theme_Display_Lbl.Place({2655, 1125, 2310, 330});
  Other_Display_Chk.Place({2700, 1710, 2265, 285});
  Display_Cbo.Place({3105, 2115, 1770, 360});
  Packs_Dir.Place({225, 1485, 1095, 315});
  Packs_Lst.Place({225, 1215, 1410, 255});
}

void Wallpaper_Page::Write_Captions() {
  Packs_Cbo.Call_It("Wallpaper pack");
  Preview_Sli.Call_It("Month of the preview");
  Display_Cbo.Call_It("Display mode");
  Theme_Use_Chk.Caption = "Use Meridex Wallpaper Packs....";
  Preview_Btn.Caption = "Preview";
  Loading_Lbl.Caption = "Loading...";
  Loading_Lbl.Alignment = toolkit::Alignment::Centre;
  Theme_Style_Lbl.Caption = "Box Style:";
  Theme_Pos_Lbl.Caption = "Position:";
  Theme_Display_Lbl.Caption = "Display:";
  Other_Display_Chk.Caption = "Use Other Display Mode....";
  for (const char* const mode : {"Center", "Tile", "Stretch"}) Display_Cbo.Add_Item(mode);
}

}  // namespace settings_window
