#include "settings_window/settings_frm.h"

namespace settings_window {

namespace {

/// The pages in the order of their tabs.
enum Page {
  events_page,
  colours_page,
  general_page,
  style_page,
  tooltips_page,
  wallpaper_page,
  exchange_page,
  about_page,
  page_count
};

constexpr int first_tab = 1;
constexpr int default_tab = 4;

}  // namespace

Settings_Frm::Settings_Frm(toolkit::Backend& backend, const platform::System& system, const Program_Parts& parts)
    : Window(backend, "Settings_Frm", toolkit::Form_Border::Fixed_Dialog),
      TabStrip1(
          Window, "TabStrip1",
          {"Events", "Colours", "Settings", "Style && Position", "Tooltips", "Wallpaper", "Import\\Export", "About"}),
      Settings_Fra(Window, "Settings_Fra", page_count),
      Events(Settings_Fra[events_page], parts.Desk, parts.Event_File, parts.Dates, system.Message_Box),
      Colours(Settings_Fra[colours_page], parts.Desk, parts.Stored, parts.Calendar, system.Pictures, system.Loop),
      Packs_Page(Settings_Fra[wallpaper_page]), General(Settings_Fra[general_page], Packs_Page, parts.Desk,
                                                        parts.Stored, parts.Run_At_Startup, system.Message_Box),
      Style(Settings_Fra[style_page], Packs_Page, parts.Desk, parts.Stored, parts.Packs, parts.Browser),
      Tooltips(Settings_Fra[tooltips_page], parts.Dates, parts.Balloons, parts.Waits, parts.Calendar),
      Wallpaper(Packs_Page, Style, parts.Desk, parts.Stored, parts.Packs, parts.Browser),
      Dialog1(Window, "Dialog1", system.File_Dialog),
      Transfer(Window, Dialog1, system.Files, parts.Channel, system.Message_Box),
      Data_Files(Transfer, Events.Overview, parts.Event_File, parts.Desk, parts.Dates),
      Config(Transfer, *this, parts.Stored, parts.Desk),
      Csv(Transfer, Events.Overview, parts.Event_File, parts.Desk, parts.Dates, parts.Csv_Columns),
      Exchange(Settings_Fra[exchange_page], Data_Files, Config, Csv),
      About(Settings_Fra[about_page], system.Shell_Open, system.Files), Ok_Btn(Window, "Ok_Btn"),
      Cancel_Btn(Window, "Cancel_Btn"), Apply_Btn(Window, "Apply_Btn"), desk_(parts.Desk), stored_(parts.Stored),
      calendar_(parts.Calendar),
      months_(Wallpaper, parts.Desk, parts.Date_Watch, parts.Main_Frm, parts.Waits, parts.Stored.Values) {
  Place_Controls();
  Tie_Events();
}

void Settings_Frm::Place_Controls() {
  Window.Caption = "Meridex Settings";
  TabStrip1.Place({45, 45, 5505, 5100});
  for (int i = 0; i < page_count; ++i) {
    Settings_Fra[i].Place({0, 0, 5145, 3840});
    Settings_Fra[i].Bordered = false;
  }
  Ok_Btn.Place({1755, 4680, 1140, 330});
  Ok_Btn.Caption = "OK";
  Ok_Btn.Default = true;
  Cancel_Btn.Place({2970, 4680, 1140, 330});
  Cancel_Btn.Caption = "Cancel";
  Cancel_Btn.Cancel = true;
  Apply_Btn.Place({4185, 4680, 1140, 330});
  Apply_Btn.Caption = "Apply";
}

void Settings_Frm::Tie_Events() {
  Window.On_Load = [this] { Load(); };
  Window.On_Activate = [this] { Activate(); };
  Window.On_Unload = [this] { Unload(); };
  TabStrip1.On_Click = [this] { Show_Page(); };
  Packs_Page.Preview_Btn.On_Click = [this] { months_.Play(); };
  Apply_Btn.On_Click = [this] { Apply_Btn_Click(); };
  Ok_Btn.On_Click = [this] {
    Apply_Btn_Click();
    Window.Unload();
  };
  Cancel_Btn.On_Click = [this] { Window.Unload(); };
}

void Settings_Frm::Load() {
  Window.Width = 5730;
  Window.Height = TabStrip1.Height + TabStrip1.Top + 420;
  Window.Centre_On_Screen();
  Position_Frames();
  const int tab = stored_.Values.Settings_Tab.Value();
  TabStrip1.Selected = tab >= first_tab && tab <= page_count ? tab : default_tab;
  Show_Page();
  General.Load();
  Events.Load();
  General.Get_Startup_Value();
  Style.Load_Pos_Wallpaper();
}

void Settings_Frm::Activate() {
  Events.Activate();
  Tooltips.Show_Choice(stored_.Values.Tooltips);
  Colours.Load_Settings();
  Style.Load_Settings();
  Style.Place_Box_From_Sliders();
  Wallpaper.Get_Papers();
  Window.Refresh();
  Wallpaper.Load_Theme_Checks();
}

void Settings_Frm::Position_Frames() const {
  for (int i = 0; i < Settings_Fra.Count(); ++i) {
    Settings_Fra[i].Left = 225;
    Settings_Fra[i].Top = 765;
  }
}

void Settings_Frm::None_Vis() const {
  for (int i = 0; i < Settings_Fra.Count(); ++i) Settings_Fra[i].Visible = false;
}

void Settings_Frm::Show_Page() {
  None_Vis();
  Settings_Fra[Which_Tab() - 1].Visible = true;
}

void Settings_Frm::Apply_Btn_Click() {
  Colours.Save_Colours();
  General.Save_General_Settings(Tooltips.Choice());
  General.Apply_Display_Mode();
  Wallpaper.Save_Theme();
  Style.Save_Theme();
  General.Apply_Title_Bar();
}

void Settings_Frm::Unload() {
  calendar_.Settings_Visible = false;
  months_.Put_Picture_Back();
  stored_.Set(&settings::Settings::Settings_Tab, Which_Tab());
  desk_.Idle_Restart();
}

}  // namespace settings_window
