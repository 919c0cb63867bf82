// The whole program: its state, its windows and its units, made over one backend and tied where calls run upwards.
#pragma once

#include "basic/file_channel.h"
#include "calendar/box_mouse.h"
#include "calendar/function_keys.h"
#include "calendar/splash_frm.h"
#include "calendar/spoken_month.h"
#include "calendar/start_up.h"
#include "platform/system.h"
#include "settings_window/settings_opener.h"

class Meridex {
 public:
  Meridex(toolkit::Backend& backend, const platform::System& system);

  /// The load of the calendar window, and the window on the screen. Throws Run_Error where the load ends the program.
  void Start();

  /// Closes all windows; the program ends with the last of them, the splash, where it still shows. Events and settings are
  /// on disk already.
  void Exit();

  [[nodiscard]] const state::Calendar_State& State() const { return calendar_; }

 private:
  void Quit_After_Last_Window();

  platform::Event_Loop& loop_;
  platform::Waits waits_;
  calendar::Dates dates_;
  basic::File_Channel channel_;
  state::Calendar_State calendar_;
  settings::Stored_Settings stored_;
  settings::Registry registry_;
  settings::Run_At_Startup run_at_startup_;
  packs::Set_Wallpaper_Mod set_wallpaper_;
  packs::Pack_Lookup pack_lookup_;
  packs::Wallpaper_Stuff wallpaper_;
  packs::Pack_Browser pack_browser_;
  events::Event_File event_file_;

  presentation::Main_Frm main_frm_;
  presentation::Placement placement_;
  presentation::Colours colours_;
  calendar::Splash_Frm splash_;
  presentation::Desktop_Embedding embedding_;
  editor::Edit_Frm editor_;

  calendar::Alerts alerts_;
  calendar::Month_Grid grid_;
  calendar::Spoken_Month spoken_month_;
  calendar::Title_Text title_;
  calendar::Month_View view_;
  calendar::Compact compact_;
  calendar::Edit_Box edit_box_;
  calendar::Desk desk_;
  tooltips::Balloons balloons_;
  calendar::Popup_Menus menus_;
  calendar::Box_Hold hold_;
  calendar::Box_Mouse box_mouse_;
  calendar::Function_Keys function_keys_;
  calendar::Date_Watch date_watch_;
  calendar::Start_Up start_up_;
  exchange::Csv_Columns csv_columns_;
  settings_window::Settings_Opener settings_opener_;
};
