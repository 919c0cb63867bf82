#include "calendar/function_keys.h"

#include "presentation/box_style.h"
#include "presentation/transparent_form.h"
#include "presentation/which_style.h"

namespace calendar {

namespace {

using settings::Settings;

constexpr const char* style_question =
    "You can't change the box style because Use Theme Style is selected. Do you want to turn off Use Theme Style?";

}  // namespace

Function_Keys::Function_Keys(presentation::Arrangement& arrangement, presentation::Placement& placement,
                             Compact& compact, Month_View& view, Month_Grid& grid, events::Event_File& event_file,
                             platform::Message_Box& message_box, platform::Clock& clock, platform::Locale& locale,
                             settings::Stored_Settings& stored, state::Calendar_State& calendar)
    : arrangement_(arrangement), placement_(placement), compact_(compact), view_(view), grid_(grid),
      event_file_(event_file), message_box_(message_box), clock_(clock), locale_(locale), stored_(stored),
      calendar_(calendar) {
  arrangement_.Main_Frm.On_Key_Up = [this](int code) { Key_Up(code); };
}

void Function_Keys::Key_Up(int code) {
  compact_.Idle_Restart();
  switch (code) {
    case toolkit::key_f1: Show_Todays_Event(); break;
    case toolkit::key_f2: view_.Previous_Month(); break;
    case toolkit::key_f3: Show_Present_Month(); break;
    case toolkit::key_f4: view_.Next_Month(); break;
    case toolkit::key_f5: view_.Refresh_Calendar(); break;
    case toolkit::key_f9: Change_Box_Style(); break;
    case toolkit::key_f12: compact_.Which_Month_Lbl_DblClick(); break;
    default: break;
  }
}

void Function_Keys::Show_Todays_Event() {
  const basic::Serial_Day day = clock_.Now().Day;
  const basic::Civil_Date today = basic::Civil_From_Serial(day);
  calendar_.Selected_Date = events::Date_Key(today.Day, today.Month, today.Year);
  const std::string text = event_file_.Get_Message(false);
  if (text.empty()) return;
  message_box_.Show("Meridex", Today_Message(locale_, day, text), platform::Box_Icon::Information,
                    platform::Box_Buttons::OK);
}

void Function_Keys::Show_Present_Month() {
  view_.Go_To_Present_Month();
  view_.Refresh_Calendar();
}

void Function_Keys::Change_Box_Style() {
  compact_.Leave_Without_Redraw();
  if (!Take_Next_Style()) return;
  grid_.Set_Day_Headers();
  presentation::Which_Style(arrangement_, stored_.Values.Style);
  presentation::TransparentForm(arrangement_.Main_Frm);
  view_.Load_Dates();
  placement_.Position_In_Force();
}

bool Function_Keys::Take_Next_Style() {
  Settings& values = stored_.Values;
  if (values.Use_Themes == 1 && values.Use_Theme_Style == 1) return Overrule_Pack_Style();
  if (values.Style >= presentation::thin_box && values.Style <= presentation::small_box)
    values.Style = (values.Style.Value() + 1) % 3;
  stored_.Save(&Settings::Style);
  return true;
}

bool Function_Keys::Overrule_Pack_Style() {
  const auto answer =
      message_box_.Show("Meridex", style_question, platform::Box_Icon::Question, platform::Box_Buttons::Yes_No_Cancel);
  if (answer != platform::Box_Answer::Yes) return false;
  stored_.Values.Use_Theme_Style = 0;
  stored_.Set(&Settings::Style,
              calendar_.Pack_Box_Style == presentation::thin_box ? presentation::square_box : presentation::thin_box);
  stored_.Save(&Settings::Use_Theme_Style);
  return true;
}

}  // namespace calendar
