#include "calendar/function_keys.h"

#include "presentation/box_style.h"

namespace calendar {

namespace {

using settings::Settings;

constexpr const char* style_question =
    "You can't change the box style because Use Theme Style is selected. Do you want to turn off Use Theme Style?";

}  // namespace

Function_Keys::Function_Keys(presentation::Main_Frm& main_frm, Desk& desk, Dates& dates, events::Event_File& event_file,
                             platform::Message_Box& message_box, settings::Stored_Settings& stored)
    : desk_(desk), dates_(dates), event_file_(event_file), message_box_(message_box), stored_(stored) {
  main_frm.Window.On_Key_Up = [this](int code) { Key_Up(code); };
}

void Function_Keys::Key_Up(int code) {
  desk_.Idle_Restart();
  switch (code) {
    case toolkit::key_f1: Show_Todays_Event(); break;
    case toolkit::key_f2: desk_.Previous_Month(); break;
    case toolkit::key_f3: desk_.Show_Present_Month(); break;
    case toolkit::key_f4: desk_.Next_Month(); break;
    case toolkit::key_f5: desk_.Refresh_Calendar(); break;
    case toolkit::key_f8: desk_.Show_Settings(); break;
    case toolkit::key_f9: Change_Box_Style(); break;
    case toolkit::key_f12: desk_.Compact_Mode(); break;
    default: break;
  }
}

void Function_Keys::Show_Todays_Event() {
  const basic::Serial_Day day = dates_.Present_Day();
  desk_.Select_Today();
  const std::string text = event_file_.Get_Message();
  if (text.empty()) return;
  message_box_.Show("Meridex", Today_Message(dates_, day, text), platform::Box_Icon::Information,
                    platform::Box_Buttons::OK);
}

void Function_Keys::Change_Box_Style() {
  desk_.Leave_Compact_Mode();
  if (Take_Next_Style()) desk_.Restyle(stored_.Values.Style);
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
  const basic::Int16 pack_style = desk_.Style_In_Force();
  stored_.Values.Use_Theme_Style = 0;
  stored_.Set(&Settings::Style,
              pack_style == presentation::thin_box ? presentation::square_box : presentation::thin_box);
  stored_.Save(&Settings::Use_Theme_Style);
  return true;
}

}  // namespace calendar
