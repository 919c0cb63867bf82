// The mouse on the calendar's labels: a double-click writes an event, a held press shows it, a right press opens a menu,
// and the title drags the window.
#pragma once

#include "calendar/compact.h"
#include "calendar/edit_box.h"
#include "calendar/popup_menus.h"
#include "platform/event_loop.h"

namespace calendar {

class Box_Mouse {
 public:
  Box_Mouse(presentation::Arrangement& arrangement, presentation::Placement& placement, Compact& compact,
            Month_View& view, Month_Grid& grid, Edit_Box& edit_box, Popup_Menus& menus, events::Event_File& event_file,
            platform::Event_Loop& loop, platform::Clock& clock, const settings::Settings& settings,
            state::Calendar_State& calendar);

  /// Opens the balloon of box Tip_Box with an event's text, "&" doubled.
  std::function<void(const std::string& text)> Balloon_Tooltip;

 private:
  void Tie_Box(toolkit::Label& label, basic::Int16 index);
  void Tie_Headers();
  void Tie_Arrow(toolkit::Label& arrow, void (Month_View::*turn)());
  void Tie_Title();
  void Box_Press(toolkit::Mouse_Button button, basic::Int16 index);

  /// A press held for 0.3 seconds on a box with an event shows the event whole.
  void Hold(basic::Int16 index);

  presentation::Arrangement& arrangement_;
  presentation::Placement& placement_;
  Compact& compact_;
  Month_View& view_;
  Month_Grid& grid_;
  Edit_Box& edit_box_;
  Popup_Menus& menus_;
  events::Event_File& event_file_;
  platform::Event_Loop& loop_;
  platform::Clock& clock_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
