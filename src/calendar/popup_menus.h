// The commands of the four popup menus.
#pragma once

#include "calendar/desk.h"
#include "platform/popup_menu.h"
#include "settings/stored_settings.h"

namespace calendar {

class Popup_Menus {
 public:
  Popup_Menus(platform::Popup_Menu& menu, presentation::Main_Frm& main_frm, Desk& desk, Dates& dates,
              settings::Stored_Settings& stored, const state::Calendar_State& calendar);

  void Popup_Menu(basic::Int16 index);
  void Popup_Months();
  void Popup_Years();
  void Popup_Start_Day(basic::Int16 index);

 private:
  int Track(const std::vector<platform::Menu_Item>& items);
  void Set_As_Start_Day(basic::Int16 index);

  platform::Popup_Menu& menu_;
  presentation::Main_Frm& main_frm_;
  Desk& desk_;
  Dates& dates_;
  settings::Stored_Settings& stored_;
  const state::Calendar_State& calendar_;
};

}  // namespace calendar
