// The commands of the function keys. A command runs when its key is released.
#pragma once

#include "calendar/desk.h"
#include "settings/stored_settings.h"

namespace calendar {

class Function_Keys {
 public:
  /// Sets the key handler of the calendar's window.
  Function_Keys(presentation::Main_Frm& main_frm, Desk& desk, Dates& dates, events::Event_File& event_file,
                platform::Message_Box& message_box, settings::Stored_Settings& stored);

 private:
  void Key_Up(int code);
  void Show_Todays_Event();
  void Change_Box_Style();

  /// Takes the next style; if a pack sets the style, asks the user first. Returns false if the user doesn't agree.
  bool Take_Next_Style();
  bool Overrule_Pack_Style();

  Desk& desk_;
  Dates& dates_;
  events::Event_File& event_file_;
  platform::Message_Box& message_box_;
  settings::Stored_Settings& stored_;
};

}  // namespace calendar
