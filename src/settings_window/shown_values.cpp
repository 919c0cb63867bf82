// What the controls of the settings window show at this moment, for the configuration file.
#include "settings_window/settings_frm.h"

namespace settings_window {

namespace {

using settings::Settings;

void Take_Colours(const Colours_Tab& tab, Settings& values) {
  values.Today = tab.Col_Today_Pic.BackColor;
  values.Normal = tab.Col_Normal_Pic.BackColor;
  values.Fore = tab.Col_Fore_Pic.BackColor;
  values.Num = tab.Col_Num_Pic.BackColor;
  values.Text = tab.Col_Text_Pic.BackColor;
  values.Back = tab.Col_Back_Pic.BackColor;
  values.Inactive = tab.Col_Inactive_Pic.BackColor;
}

void Take_General(const General_Tab& tab, Settings& values) {
  values.Show_Alerts = tab.Alert_Chk.Value();
  values.Allow_Dragging = tab.Allow_Dragging_Chk.Value();
  values.Bar_Time = Ticked(tab.Bar_Time_Chk);
  values.Bar_Time_Format = tab.Bar_Time_Cbo.Text();
  values.Bar_Date_Format = tab.Bar_Date_Cbo.Text();
  values.Auto_Compact = tab.Auto_Compact_Chk.Value();
  values.Show_Splash = tab.Splash_Chk.Value();
  values.Trans_Icons = tab.Trans_Icons_Chk.Value();
  values.Timeout_Format = tab.Timeout_Format_Cbo.ListIndex();
  values.Carriage_Return = tab.Carriage_Return_Chk.Value();
}

void Take_Packs(const Wallpaper_Page& page, const Style_Tab& style, Settings& values) {
  values.Use_Themes = page.Theme_Use_Chk.Value();
  values.Use_Theme_Pos = style.Theme_Pos_Chk.Value();
  values.Use_Theme_Style = style.Theme_Style_Chk.Value();
  values.Use_Other_Display_Mode = Ticked(page.Other_Display_Chk);
  values.Other_Display_Mode = page.Display_Cbo.ListIndex();
  values.Pack_Name = page.Packs_Cbo.Text();
}

}  // namespace

exchange::Shown_Values Settings_Frm::Shown() const {
  exchange::Shown_Values shown;
  // The place after a drag and the first weekday have no controls.
  shown.Values = stored_.Values;
  Take_Colours(Colours, shown.Values);
  Take_General(General, shown.Values);
  shown.Idle_Time = General.Timeout_Value_Cbo.Text();
  Take_Packs(Packs_Page, Style, shown.Values);
  constexpr int none = -1;
  if (const basic::Int16 style = Style.Chosen_Style(none); style != none) shown.Style = style;
  if (Style.Pos_Manual_Opt.Value || Style.Pos_Set_Opt.Value) shown.Position = Style.Chosen_Position();
  if (Colours.Col_Sys_Opt.Value) shown.Title_Row_Source = 0;
  if (Colours.Col_Other_Opt.Value) shown.Title_Row_Source = 1;
  for (int i = 0; i < Tooltips.Tips_Opt.Count(); ++i)
    if (Tooltips.Tips_Opt[i].Value) shown.Tips = i;
  return shown;
}

}  // namespace settings_window
