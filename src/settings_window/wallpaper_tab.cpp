#include "settings_window/wallpaper_tab.h"

#include "settings_window/positions.h"

namespace settings_window {

namespace {

using settings::Settings;

std::string_view Style_Name(basic::Int16 style) {
  switch (style.Value()) {
    case 0: return "Thin Box";
    case 1: return "Square Box";
    default: return "";
  }
}

std::string_view Display_Name(basic::Int16 mode) {
  switch (mode.Value()) {
    case 0: return "Center";
    case 1: return "Tile";
    case 2: return "Stretch";
    default: return "";
  }
}

std::string Last_Name(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

}  // namespace

Wallpaper_Tab::Wallpaper_Tab(Wallpaper_Page& page, Style_Tab& style_tab, calendar::Desk& desk,
                             settings::Stored_Settings& stored, packs::Pack_Lookup& packs,
                             const packs::Pack_Browser& browser)
    : Page(page), Style(style_tab), Browser(browser), desk_(desk), stored_(stored), packs_(packs) {
  Tie_Events();
}

void Wallpaper_Tab::Tie_Events() {
  Page.Packs_Cbo.On_Click = [this] { Packs_Cbo_Click(); };
  Page.Theme_Use_Chk.On_Click = [this] { Theme_Use_Chk_Click(); };
  toolkit::Slider& slider = Page.Preview_Sli;
  slider.On_Mouse_Down = [this](const toolkit::Mouse_Event& /*event*/) {
    old_preview_month_ = Page.Preview_Sli.Value();
  };
  slider.On_Key_Down = [this] { old_preview_month_ = Page.Preview_Sli.Value(); };
  slider.On_Scroll = [this] { Page.Preview_Sli.Text = desk_.Month_Name(Page.Preview_Sli.Value); };
  slider.On_Change = [this] { Preview_Sli_Change(); };
}

void Wallpaper_Tab::Get_Papers() {
  Page.Packs_Dir.Clear();
  for (const std::string& folder : Browser.Folders()) Page.Packs_Dir.Add_Item(folder);
  Page.Packs_Lst.Clear();
  for (int i = 0; i < Page.Packs_Dir.ListCount(); ++i) Page.Packs_Lst.Add_Item(Page.Packs_Dir.List(i));
  for (int i = 0; i < Page.Packs_Lst.ListCount(); ++i)
    if (All_Files(i)) Page.Packs_Cbo.Add_Item(Last_Name(Page.Packs_Lst.List(i)));
  Page.Packs_Cbo.Select_Text(stored_.Values.Pack_Name);
}

bool Wallpaper_Tab::All_Files(basic::Int16 index) const {
  return Browser.Is_Whole_Folder(Page.Packs_Lst.List(index.Value()));
}

/// Whether the selected pack is whole. One that isn't goes from the list, and the first one is selected in its place, which
/// has its own check.
bool Wallpaper_Tab::Check_Vaild() {
  toolkit::Combo_Box& packs = Page.Packs_Cbo;
  if (Browser.Is_Whole(packs.Text())) return true;
  packs.Remove_Item(packs.ListIndex());
  if (packs.ListCount() > 0) packs.Select(0);
  return false;
}

void Wallpaper_Tab::Load_Theme_Checks() {
  Page.Theme_Use_Chk.Value = stored_.Values.Use_Themes == 0 ? 0 : 1;
  Style.Theme_Pos_Chk.Value = stored_.Values.Use_Theme_Pos == 0 ? 0 : 1;
  Style.Theme_Style_Chk.Value = stored_.Values.Use_Theme_Style == 0 ? 0 : 1;
  Style.Style_Preview();
}

std::string Wallpaper_Tab::Get_Details() const {
  return packs_.Get_Paper_Details(Page.Preview_Sli.Value(), Page.Packs_Cbo.Text());
}

void Wallpaper_Tab::Get_Theme_Pos() {
  const basic::Int16 position = packs::Get_Paper_Pos(Get_Details());
  Page.Theme_Pos_Lbl.Caption = "Position: " + std::string(Position_Name(position));
  Style.Shown_Pack_Pos = position;
}

void Wallpaper_Tab::Get_Theme_Style() {
  Page.Theme_Style_Lbl.Caption = "Box Style: " + std::string(Style_Name(packs::Get_Paper_BoxStyle(Get_Details())));
}

void Wallpaper_Tab::Get_Theme_Display() {
  Page.Theme_Display_Lbl.Caption = "Display: " + std::string(Display_Name(packs::Get_Paper_DisplayMode(Get_Details())));
}

void Wallpaper_Tab::Get_Theme_Picture() {
  Page.Theme_Preview_Img.Loaded = nullptr;
  Page.Loading_Lbl.Visible = true;
  Page.Loading_Lbl.Window.Refresh();
  Page.Theme_Preview_Img.Loaded = Browser.Month_Picture(Page.Packs_Cbo.Text(), Page.Preview_Sli.Value());
  Page.Loading_Lbl.Visible = false;
}

void Wallpaper_Tab::Refresh() {
  Get_Theme_Pos();
  Get_Theme_Style();
  Get_Theme_Display();
  Get_Theme_Picture();
}

void Wallpaper_Tab::Preview_Sli_Change() {
  if (old_preview_month_ != Page.Preview_Sli.Value()) Refresh();
}

void Wallpaper_Tab::Packs_Cbo_Click() {
  Page.Theme_Preview_Img.Loaded = nullptr;
  Page.Theme_Style_Lbl.Caption = "Box Style:";
  Page.Theme_Pos_Lbl.Caption = "Position:";
  Page.Theme_Display_Lbl.Caption = "Display:";
  if (!Check_Vaild()) return;
  const int month = desk_.Present_Month();
  Page.Preview_Sli.Value = month;
  old_preview_month_ = 0;
  Refresh();
  if (!Page.Packs_Cbo.Enabled) return;
  Style.Style_Preview();
  Style.Place_Box();
  Style.Pos_Preview_Img.Loaded = Browser.Month_Picture(Page.Packs_Cbo.Text(), month);
}

void Wallpaper_Tab::Theme_Use_Chk_Click() {
  toolkit::Combo_Box& packs = Page.Packs_Cbo;
  if (packs.ListCount() == 0) {
    Page.Theme_Use_Chk.Value = 0;
    return;
  }
  if (packs.ListIndex() == -1) packs.Select(0);
  const bool on = Ticked(Page.Theme_Use_Chk);
  packs.Enabled = on;
  Page.Preview_Sli.Enabled = on;
  if (!on) {
    Page.Preview_Btn.Enabled = false;
    Style.Load_Pos_Wallpaper();
    return;
  }
  Refresh();
  Page.Preview_Btn.Enabled = true;
  Packs_Cbo_Click();
}

void Wallpaper_Tab::Save_Theme() {
  const auto save_tick = [this](basic::Int16 Settings::*variable, const toolkit::Check_Box& box) {
    if (stored_.Values.*variable != box.Value()) stored_.Set(variable, box.Value());
  };
  if (stored_.Values.Use_Themes != Page.Theme_Use_Chk.Value()) {
    if (!Ticked(Page.Theme_Use_Chk)) desk_.Set_Wallpaper("", 0);
    save_tick(&Settings::Use_Themes, Page.Theme_Use_Chk);
  }
  save_tick(&Settings::Use_Theme_Pos, Style.Theme_Pos_Chk);
  save_tick(&Settings::Use_Theme_Style, Style.Theme_Style_Chk);
  const std::string pack = Page.Packs_Cbo.Text();
  if (!pack.empty() && pack != stored_.Values.Pack_Name) stored_.Set(&Settings::Pack_Name, pack);
}

}  // namespace settings_window
