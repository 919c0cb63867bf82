// The tab "Settings": the title bar's formats and the calendar's general behaviour, with the display mode of the tab
// "Wallpaper". Nothing of it takes effect before it is applied; the preview of the title alone follows at once.
#pragma once

#include "calendar/desk.h"
#include "platform/message_box.h"
#include "settings/run_at_startup.h"
#include "settings_window/wallpaper_page.h"

namespace settings_window {

class General_Tab {
 public:
  General_Tab(toolkit::Frame& page, Wallpaper_Page& packs_page, calendar::Desk& desk, settings::Stored_Settings& stored,
              settings::Run_At_Startup& run_at_startup, platform::Message_Box& message_box);

  toolkit::Frame Frame11;
  toolkit::Label Bar_Preview_Lbl;
  toolkit::Check_Box Bar_Time_Chk;
  toolkit::Combo_Box Bar_Time_Cbo;
  toolkit::Label Label2;
  toolkit::Combo_Box Bar_Date_Cbo;

  toolkit::Frame Frame5;
  toolkit::Check_Box Startup_Chk, Splash_Chk, Alert_Chk, Trans_Icons_Chk, Carriage_Return_Chk, Allow_Dragging_Chk,
      Auto_Compact_Chk;
  toolkit::Combo_Box Timeout_Value_Cbo, Timeout_Format_Cbo;

  /// The window's load: the lists and all controls from the settings.
  void Load();

  /// Startup_Chk from the registry.
  void Get_Startup_Value();

  /// Stores what differs. `tooltips` is the index of the option that is on in the tab "Tooltips".
  void Save_General_Settings(basic::Int16 tooltips);

  /// Store their settings whether they differ or not.
  void Apply_Display_Mode();
  void Apply_Title_Bar();

 private:
  void Make_Title_Frame();
  void Make_General_Frame();
  void Fill_Lists();
  void Tie_Events();
  void Show_Bar_Preview();
  void Auto_Compact_Chk_Click();
  void Other_Display_Chk_Click();
  void Trans_Icons_Chk_Released(const toolkit::Mouse_Event& event);
  void Load_Ticks();
  bool Save(basic::Int16 settings::Settings::*variable, basic::Int16 value);

  Wallpaper_Page& packs_page_;
  calendar::Desk& desk_;
  settings::Stored_Settings& stored_;
  settings::Run_At_Startup& run_at_startup_;
  platform::Message_Box& message_box_;
};

}  // namespace settings_window
