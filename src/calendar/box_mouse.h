// The mouse on the calendar's labels: a double-click on a day box opens the editor, a held press shows the event, the
// right button opens a menu, and dragging the title moves the window.
#pragma once

#include "calendar/box_hold.h"
#include "calendar/popup_menus.h"

namespace calendar {

class Box_Mouse {
 public:
  /// Sets the mouse handlers of all labels of the calendar's window.
  Box_Mouse(presentation::Main_Frm& main_frm, presentation::Placement& placement, Desk& desk, Popup_Menus& menus,
            Box_Hold& hold);

 private:
  void Tie_Box(toolkit::Label& label, basic::Int16 index);
  void Tie_Header(toolkit::Label& header, basic::Int16 index);
  void Tie_Arrow(toolkit::Label& arrow, void (Desk::*turn)());
  void Tie_Title(toolkit::Label& title);
  void Box_Press(toolkit::Mouse_Button button, basic::Int16 index);

  presentation::Placement& placement_;
  Desk& desk_;
  Popup_Menus& menus_;
  Box_Hold& hold_;
};

}  // namespace calendar
