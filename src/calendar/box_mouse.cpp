#include "calendar/box_mouse.h"

#include "calendar/time_out.h"

namespace calendar {

using toolkit::Mouse_Button;
using toolkit::Mouse_Event;

namespace {

constexpr float hold_seconds = 0.3F;

}  // namespace

Box_Mouse::Box_Mouse(presentation::Arrangement& arrangement, presentation::Placement& placement, Compact& compact,
                     Month_View& view, Month_Grid& grid, Edit_Box& edit_box, Popup_Menus& menus,
                     events::Event_File& event_file, platform::Event_Loop& loop, platform::Clock& clock,
                     const settings::Settings& settings, state::Calendar_State& calendar)
    : arrangement_(arrangement), placement_(placement), compact_(compact), view_(view), grid_(grid),
      edit_box_(edit_box), menus_(menus), event_file_(event_file), loop_(loop), clock_(clock), settings_(settings),
      calendar_(calendar) {
  for (int i = 0; i < presentation::box_count; ++i) {
    Tie_Box(arrangement_.Box_Lbl[i], i);
    Tie_Box(arrangement_.Box_Caption_Lbl[i], i);
  }
  Tie_Headers();
  Tie_Arrow(arrangement_.Prev_Month_Lbl, &Month_View::Previous_Month);
  Tie_Arrow(arrangement_.Next_Month_Lbl, &Month_View::Next_Month);
  Tie_Title();
}

void Box_Mouse::Tie_Box(toolkit::Label& label, basic::Int16 index) {
  label.On_Mouse_Down = [this, index](const Mouse_Event& event) { Box_Press(event.Button, index); };
  label.On_Mouse_Move = [this](const Mouse_Event&) { compact_.Idle_Restart(); };
  label.On_Mouse_Up = [this](const Mouse_Event&) { calendar_.Mouse_Released = true; };
  label.On_Double_Click = [this, index] { edit_box_.Open(index); };
}

void Box_Mouse::Tie_Headers() {
  for (int i = 0; i < presentation::days_of_week; ++i) {
    toolkit::Label& header = arrangement_.Day_Lbl[i];
    header.On_Mouse_Down = [this, i](const Mouse_Event& event) {
      if (event.Button == Mouse_Button::Right) menus_.Popup_Start_Day(i);
    };
    header.On_Mouse_Move = [this](const Mouse_Event&) { compact_.Idle_Restart(); };
  }
}

void Box_Mouse::Tie_Arrow(toolkit::Label& arrow, void (Month_View::*turn)()) {
  arrow.On_Mouse_Down = [this](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Right) menus_.Popup_Months();
  };
  arrow.On_Mouse_Move = [this](const Mouse_Event&) { compact_.Idle_Restart(); };
  arrow.On_Mouse_Up = [this, turn](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Left) (view_.*turn)();
  };
}

void Box_Mouse::Tie_Title() {
  toolkit::Label& title = arrangement_.Which_Month_Lbl;
  title.On_Mouse_Down = [this](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Right) menus_.Popup_Years();
    else if (event.Button == Mouse_Button::Left) placement_.Start_Drag(event.X, event.Y);
  };
  title.On_Mouse_Move = [this](const Mouse_Event& event) {
    if (event.Button == Mouse_Button::Left) placement_.Drag(event.X, event.Y);
    compact_.Idle_Restart();
    compact_.Wake_Up();
  };
  title.On_Mouse_Up = [this](const Mouse_Event& event) {
    if (event.Button != Mouse_Button::Right) placement_.End_Drag();
  };
  title.On_Double_Click = [this] { compact_.Which_Month_Lbl_DblClick(); };
}

void Box_Mouse::Box_Press(Mouse_Button button, basic::Int16 index) {
  if (button == Mouse_Button::Right) menus_.Popup_Menu(index);
  else Hold(index);
}

void Box_Mouse::Hold(basic::Int16 index) {
  if (settings_.Tooltips != 2 || arrangement_.Box_Caption_Lbl[index].Caption == "") return;
  calendar_.Mouse_Released = false;
  TimeOut(loop_, clock_, hold_seconds);
  if (calendar_.Mouse_Released) return;
  calendar_.Tip_Box = index;
  calendar_.Selected_Date = events::Date_Key(grid_.Day_Of_Box(index), calendar_.View_Month, calendar_.View_Year);
  Balloon_Tooltip(event_file_.Get_Message(false));
}

}  // namespace calendar
