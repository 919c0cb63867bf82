// The small window in which a day's event is written. Edit_Box fills it; OK and Apply hand its text to the event file and
// update the day's box in place; it never blocks the calendar.
#pragma once

#include <functional>

#include "events/event_file.h"
#include "presentation/main_frm.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"

namespace editor {

/// The number of words between blanks and line ends; tabs are part of a word.
std::int32_t CountWords(std::string_view text);

class Edit_Frm {
 public:
  Edit_Frm(toolkit::Backend& backend, presentation::Main_Frm& main_frm, events::Event_File& event_file,
           const settings::Settings& settings, state::Calendar_State& calendar, std::function<void()> idle_restart);

  toolkit::Form Window;
  toolkit::Label Date_Lbl;
  toolkit::Text_Box Message_Txt;
  toolkit::Check_Box Every_Year_Chk;
  toolkit::Command_Button Ok_Btn, Cancel_Btn;
  toolkit::Command_Button Apply_Btn;  ///< enabled while there is something to save

  /// Saves the text for Selected_Date, shows it in the box Current_Box and closes the window. Throws as
  /// Event_File::Check_For_Pre.
  void Apply_Btn_Click();

  /// The text and the tick as they stand in the window; empty while it isn't open.
  [[nodiscard]] events::Day_Event Content() const;

 private:
  void Place_Controls();
  void Tie_Events();
  void Load();
  void Message_Txt_Change();
  void Show_In_Box(const std::string& text);

  presentation::Main_Frm& main_frm_;
  events::Event_File& event_file_;
  const settings::Settings& settings_;
  state::Calendar_State& calendar_;
  const std::function<void()> idle_restart_;  // at each closing of the window
};

}  // namespace editor
