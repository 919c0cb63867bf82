// The commands of the four popup menus.
#pragma once

#include "calendar/compact.h"
#include "calendar/edit_box.h"
#include "platform/popup_menu.h"
#include "settings/stored_settings.h"

namespace calendar {

class Popup_Menus {
 public:
  Popup_Menus(platform::Popup_Menu& menu, presentation::Arrangement& arrangement, Month_Grid& grid, Month_View& view,
              Compact& compact, Edit_Box& edit_box, events::Event_File& event_file, platform::Clock& clock,
              platform::Locale& locale, settings::Stored_Settings& stored, state::Calendar_State& calendar);

  std::function<void()> Exit;

  void Popup_Menu(basic::Int16 index);
  void Popup_Months();
  void Popup_Years();
  void Popup_Start_Day(basic::Int16 index);

 private:
  int Track(const std::vector<platform::Menu_Item>& items);
  void Clear(basic::Int16 index);
  void Set_As_Start_Day(basic::Int16 index);

  platform::Popup_Menu& menu_;
  presentation::Arrangement& arrangement_;
  Month_Grid& grid_;
  Month_View& view_;
  Compact& compact_;
  Edit_Box& edit_box_;
  events::Event_File& event_file_;
  platform::Clock& clock_;
  platform::Locale& locale_;
  settings::Stored_Settings& stored_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
