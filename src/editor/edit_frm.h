// The small window in which the user writes a day's event. Edit_Box fills it; OK and Apply save its text in the event
// file, show it in the day's box and close the window. The calendar stays usable meanwhile.
#pragma once

#include <functional>

#include "events/event_file.h"
#include "presentation/main_frm.h"
#include "toolkit/check_box.h"
#include "toolkit/command_button.h"
#include "toolkit/text_box.h"

namespace editor {

/// The number of words in a text. Blanks and line ends separate words; a tab is part of a word.
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

  /// Saves the text for Selected_Date, shows it in the box Current_Box and unloads the window. Throws what
  /// Event_File::Check_For_Pre and Day_Box::Write_Event throw.
  void Apply_Btn_Click();

  /// The text and the check box as they are in the window; empty if it isn't loaded.
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
  const std::function<void()> idle_restart_;  // called each time the window closes
};

}  // namespace editor
