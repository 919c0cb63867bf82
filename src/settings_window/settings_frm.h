// The settings window: a strip of eight tabs with a page each, and the buttons "OK", "Cancel" and "Apply". Its controls are
// a working copy of the settings; OK and Apply alone carry it into the program.
//
// A window is made for each opening, with all its controls as they are at first.
#pragma once

#include "platform/system.h"
#include "settings_window/about_tab.h"
#include "settings_window/colours_tab.h"
#include "settings_window/events_tab.h"
#include "settings_window/exchange_tab.h"
#include "settings_window/general_tab.h"
#include "settings_window/tooltips_tab.h"
#include "settings_window/twelve_months.h"
#include "toolkit/tab_strip.h"

namespace settings_window {

/// What of the program the tabs work on.
struct Program_Parts {
  calendar::Desk& Desk;
  calendar::Dates& Dates;
  calendar::Date_Watch& Date_Watch;
  presentation::Main_Frm& Main_Frm;
  events::Event_File& Event_File;
  packs::Pack_Lookup& Packs;
  const packs::Pack_Browser& Browser;
  settings::Stored_Settings& Stored;
  settings::Run_At_Startup& Run_At_Startup;
  tooltips::Balloons& Balloons;
  platform::Waits& Waits;
  state::Calendar_State& Calendar;
  basic::File_Channel& Channel;
  exchange::Csv_Columns& Csv_Columns;
};

class Settings_Frm final : private exchange::Window_Values {
 public:
  Settings_Frm(toolkit::Backend& backend, const platform::System& system, const Program_Parts& parts);

  toolkit::Form Window;
  toolkit::Tab_Strip TabStrip1;
  toolkit::Control_Array<toolkit::Frame> Settings_Fra;

  Events_Tab Events;
  Colours_Tab Colours;
  Wallpaper_Page Packs_Page;
  General_Tab General;
  Style_Tab Style;
  Tooltips_Tab Tooltips;
  Wallpaper_Tab Wallpaper;
  dialogs::OpenSaveDialog Dialog1;
  exchange::Transfer Transfer;
  exchange::Data_Files Data_Files;
  exchange::Config Config;
  exchange::Csv Csv;
  Exchange_Tab Exchange;
  About_Tab About;
  toolkit::Command_Button Ok_Btn, Cancel_Btn, Apply_Btn;

  void Apply_Btn_Click();

  /// Whether one of its handlers waits, and will go on after that.
  [[nodiscard]] bool Waiting() const { return months_.Playing() || Tooltips.Waiting(); }

 private:
  void Place_Controls();
  void Tie_Events();
  void Load();
  void Activate();
  void Unload();
  void Position_Frames() const;
  void None_Vis() const;
  [[nodiscard]] int Which_Tab() const { return TabStrip1.Selected; }
  void Show_Page();
  [[nodiscard]] exchange::Shown_Values Shown() const override;

  calendar::Desk& desk_;
  settings::Stored_Settings& stored_;
  state::Calendar_State& calendar_;
  Twelve_Months months_;
};

}  // namespace settings_window
