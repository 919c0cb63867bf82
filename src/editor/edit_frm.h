// The small window in which a day's event is written. Edit_Box fills it; OK and Apply hand its text to the event file and
// update the day's box in place; it never blocks the calendar.
#pragma once

#include <functional>

#include "events/event_file.h"
#include "presentation/caption_fitting.h"
#include "settings/settings.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"

namespace editor {

class Edit_Frm : public events::Editor_Input {
 public:
  Edit_Frm(toolkit::Backend& backend, presentation::Arrangement& arrangement,
           presentation::Caption_Fitting& caption_fitting, events::Event_File& event_file,
           const settings::Settings& settings, state::Calendar_State& calendar);

  toolkit::Form Window;
  toolkit::Label Date_Lbl;
  toolkit::Text_Box Message_Txt;
  toolkit::Check_Box Every_Year_Chk;
  toolkit::Command_Button Ok_Btn, Cancel_Btn;
  toolkit::Command_Button Apply_Btn;  ///< enabled while there is something to save

  /// What the closing of the window tells, by whichever way it closes.
  std::function<void()> Idle_Restart;

  /// Saves the text for Selected_Date, shows it in the box Current_Box and closes the window. Throws as
  /// Event_File::Check_For_Pre.
  void Apply_Btn_Click();

  [[nodiscard]] std::string Message_Text() const override;
  [[nodiscard]] bool Every_Year() const override;
  void Tick_Every_Year() override;

 private:
  void Place_Controls();
  void Tie_Events();
  void Load();
  void Message_Txt_Change();
  void Show_In_Box(const std::string& text);

  presentation::Arrangement& arrangement_;
  presentation::Caption_Fitting& caption_fitting_;
  events::Event_File& event_file_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
};

}  // namespace editor
