#include "calendar/edit_box.h"

#include "basic/convert.h"
#include "basic/text.h"

namespace calendar {

Edit_Box::Edit_Box(editor::Edit_Frm& editor, events::Event_File& event_file, Month_Grid& grid, Dates& dates,
                   platform::Message_Box& message_box, state::Calendar_State& calendar)
    : editor_(editor), event_file_(event_file), grid_(grid), dates_(dates), message_box_(message_box),
      calendar_(calendar) {}

void Edit_Box::Open(basic::Int16 index) {
  const basic::Int16 day = grid_.Day_Of_Box(index);
  const basic::Serial_Day serial =
      basic::Date_Serial(calendar_.View_Year.Value(), calendar_.View_Month.Value(), day.Value());
  editor_.Window.Load();
  if (!Settle_Unsaved_Text()) {
    editor_.Window.Set_Focus(editor_.Message_Txt);
    return;
  }
  calendar_.Current_Box = index;
  // The day was taken before the question, month and year are taken after it: midnight may have changed them meanwhile.
  calendar_.Selected_Date = events::Date_Key(day, calendar_.View_Month, calendar_.View_Year);
  Fill();
  editor_.Date_Lbl.Caption = Long_Date(serial, day);
  editor_.Window.Show();
  editor_.Window.Set_Focus(editor_.Message_Txt);
  editor_.Message_Txt.SelStart = 0;
  editor_.Message_Txt.SelLength = static_cast<int>(editor_.Message_Txt.Text().size());
}

void Edit_Box::Clear(basic::Int16 index) {
  grid_.Select_Day_Of_Box(index);
  event_file_.Load_File();
  event_file_.Check_For_Pre("", editor_.Content());
  grid_.Clear_Event(index);
}

bool Edit_Box::Settle_Unsaved_Text() {
  if (!editor_.Apply_Btn.Enabled || editor_.Date_Lbl.Caption == "") return true;
  // The title is deliberately not the program's name.
  const auto answer = message_box_.Show("Desktop Wallpaper", "Save changes for the " + editor_.Date_Lbl.Caption() + "?",
                                        platform::Box_Icon::Question, platform::Box_Buttons::Yes_No_Cancel);
  if (answer == platform::Box_Answer::Cancel) return false;
  if (answer == platform::Box_Answer::Yes) editor_.Apply_Btn_Click();
  return true;
}

void Edit_Box::Fill() {
  editor_.Window.Load();
  editor_.Message_Txt.Text = "";
  const std::string text = event_file_.Get_Message([this] { editor_.Every_Year_Chk.Value = 1; });
  editor_.Message_Txt.Text = basic::Single_Ampersands(text);
  editor_.Apply_Btn.Enabled = false;
}

std::string Edit_Box::Long_Date(basic::Serial_Day serial, basic::Int16 day) const {
  const basic::Date_Words& words = dates_.Words();
  return words.Weekday_Name(basic::Weekday_Of(serial)) + " " + basic::To_Text(day) + Get_Suffix(day) + " " +
         words.Month_Name(calendar_.View_Month.Value()) + " " + basic::To_Text(calendar_.View_Year);
}

}  // namespace calendar
