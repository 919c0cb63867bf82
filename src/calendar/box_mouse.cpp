#include "calendar/box_mouse.h"

namespace calendar {

using toolkit::Mouse_Button;
using toolkit::Mouse_Event;

Box_Mouse::Box_Mouse(presentation::Main_Frm& main_frm, presentation::Placement& placement, Desk& desk,
                     Popup_Menus& menus, Box_Hold& hold)
    : placement_(placement), desk_(desk), menus_(menus), hold_(hold) {
  for (int i = 0; i < presentation::box_count; ++i) {
    Tie_Box(main_frm.Box_Lbl[i], i);
    Tie_Box(main_frm.Box_Caption_Lbl[i], i);
  }
  for (int i = 0; i < presentation::days_of_week; ++i) Tie_Header(main_frm.Day_Lbl[i], i);
  Tie_Arrow(main_frm.Prev_Month_Lbl, &Desk::Previous_Month);
  Tie_Arrow(main_frm.Next_Month_Lbl, &Desk::Next_Month);
  Tie_Title(main_frm.Which_Month_Lbl);
}

void Box_Mouse::Tie_Box(toolkit::Label& label, basic::Int16 index) {
  label.On_Mouse_Down = [this, index](const Mouse_Event& event) { Box_Press(event.Button, index); };
  label.On_Mouse_Move = [this](const Mouse_Event&) { desk_.Idle_Restart(); };
  label.On_Mouse_Up = [this](const Mouse_Event&) { hold_.Release(); };
  label.On_Double_Click = [this, index] { desk_.Edit_Day(index); };
}

void Box_Mouse::Box_Press(Mouse_Button button, basic::Int16 index) {
  if (button == Mouse_Button::Right) menus_.Popup_Menu(index);
  else hold_.Press(index);
}

void Box_Mouse::Tie_Header(toolkit::Label& header, basic::Int16 index) {
  header.On_Mouse_Down = [this, index](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Right) menus_.Popup_Start_Day(index);
  };
  header.On_Mouse_Move = [this](const Mouse_Event&) { desk_.Idle_Restart(); };
}

void Box_Mouse::Tie_Arrow(toolkit::Label& arrow, void (Desk::*turn)()) {
  arrow.On_Mouse_Down = [this](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Right) menus_.Popup_Months();
  };
  arrow.On_Mouse_Move = [this](const Mouse_Event&) { desk_.Idle_Restart(); };
  arrow.On_Mouse_Up = [this, turn](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Left) (desk_.*turn)();
  };
}

void Box_Mouse::Tie_Title(toolkit::Label& title) {
  title.On_Mouse_Down = [this](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Right) menus_.Popup_Years();
    else if (event.Button == Mouse_Button::Left) placement_.Start_Drag(event.X, event.Y);
  };
  title.On_Mouse_Move = [this](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Left) placement_.Drag(event.X, event.Y);
    desk_.Idle_Restart();
    desk_.Wake_Up();
  };
  title.On_Mouse_Up = [this](const Mouse_Event& event) {
    if (event.Button != Mouse_Button::Right) placement_.End_Drag();
  };
  title.On_Double_Click = [this] { desk_.Compact_Mode(); };
}

}  // namespace calendar
