// The commands of the function keys. They run when the key goes up.
#pragma once

#include "calendar/compact.h"
#include "settings/stored_settings.h"

namespace calendar {

class Function_Keys {
 public:
  Function_Keys(presentation::Arrangement& arrangement, presentation::Placement& placement, Compact& compact,
                Month_View& view, Month_Grid& grid, events::Event_File& event_file, platform::Message_Box& message_box,
                platform::Clock& clock, platform::Locale& locale, settings::Stored_Settings& stored,
                state::Calendar_State& calendar);

 private:
  void Key_Up(int code);
  void Show_Todays_Event();
  void Show_Present_Month();
  void Change_Box_Style();

  /// Says whether the style has changed; a pack that rules it has to be overruled by the user first.
  bool Take_Next_Style();
  bool Overrule_Pack_Style();

  presentation::Arrangement& arrangement_;
  presentation::Placement& placement_;
  Compact& compact_;
  Month_View& view_;
  Month_Grid& grid_;
  events::Event_File& event_file_;
  platform::Message_Box& message_box_;
  platform::Clock& clock_;
  platform::Locale& locale_;
  settings::Stored_Settings& stored_;
  state::Calendar_State& calendar_;
};

}  // namespace calendar
