#include "editor/edit_frm.h"

#include <algorithm>
#include <utility>

#include "basic/convert.h"
#include "basic/text.h"
#include "presentation/box_style.h"

namespace editor {

std::int32_t CountWords(std::string_view text) {
  std::string words(text);
  std::replace_if(
      words.begin(), words.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  std::int32_t count = 0;
  std::size_t blank = words.find(' ');
  if (!words.empty() && blank != 0) count = 1;
  while (blank != std::string::npos) {
    ++count;
    while (blank + 1 < words.size() && words[blank + 1] == ' ') ++blank;
    blank = words.find(' ', blank + 1);
  }
  // A blank at the end was counted as the start of one more word.
  if (!words.empty() && words.back() == ' ') --count;
  return count;
}

Edit_Frm::Edit_Frm(toolkit::Backend& backend, presentation::Main_Frm& main_frm, events::Event_File& event_file,
                   const settings::Settings& settings, state::Calendar_State& calendar,
                   std::function<void()> idle_restart)
    : Window(backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog), Date_Lbl(Window, "Date_Lbl"),
      Message_Txt(Window, "Message_Txt"), Every_Year_Chk(Window, "Every_Year_Chk"), Ok_Btn(Window, "Ok_Btn"),
      Cancel_Btn(Window, "Cancel_Btn"), Apply_Btn(Window, "Apply_Btn"), main_frm_(main_frm), event_file_(event_file),
      settings_(settings), calendar_(calendar), idle_restart_(std::move(idle_restart)) {
  Place_Controls();
  Tie_Events();
}

void Edit_Frm::Place_Controls() {
  Date_Lbl.Place({45, 90, 4830, 285});
  Message_Txt.Place({45, 450, 4830, 2040});
  Every_Year_Chk.Place({90, 2680, 1140, 210});
  Every_Year_Chk.Caption = "Every year";
  Ok_Btn.Place({1305, 2610, 1140, 330});
  Ok_Btn.Caption = "&OK";
  Cancel_Btn.Place({2520, 2610, 1140, 330});
  Cancel_Btn.Caption = "Cancel";
  Cancel_Btn.Cancel = true;
  Apply_Btn.Place({3735, 2610, 1140, 330});
  Apply_Btn.Caption = "Apply";
}

void Edit_Frm::Tie_Events() {
  Window.On_Load = [this] { Load(); };
  Window.On_Activate = [this] { Ok_Btn.Default = settings_.Carriage_Return != 1; };
  Window.On_Unload = [this] { idle_restart_(); };
  Message_Txt.On_Change = [this] { Message_Txt_Change(); };
  Ok_Btn.On_Click = [this] { Apply_Btn_Click(); };
  Apply_Btn.On_Click = [this] { Apply_Btn_Click(); };
  Cancel_Btn.On_Click = [this] { Window.Unload(); };
}

/// Every opening starts from the same state, whatever the last one left in the controls.
void Edit_Frm::Load() {
  Window.Set_Client_Size(4935, 3000);
  Window.Centre_On_Screen();
  Date_Lbl.Caption = "";
  Message_Txt.Text = "";
  Every_Year_Chk.Value = 0;
  Ok_Btn.Default = true;
  Window.Caption = "Meridex - 0 Characters - 0 Words.";
  Apply_Btn.Enabled = false;
}

void Edit_Frm::Message_Txt_Change() {
  const std::string& text = Message_Txt.Text;
  Window.Caption = "Meridex - " + basic::To_Text(static_cast<std::int32_t>(text.size())) + " Characters - " +
                   basic::To_Text(CountWords(text)) + " Words.";
  Apply_Btn.Enabled = true;
}

void Edit_Frm::Apply_Btn_Click() {
  Message_Txt.Text = basic::Replace_All(Message_Txt.Text(), "\"", "'");
  event_file_.Load_File();
  const events::Day_Event content = Content();
  event_file_.Check_For_Pre(content.Text, content);
  Show_In_Box(content.Text);
  Apply_Btn.Enabled = false;
  calendar_.Alerted_Today = true;
  Window.Unload();
}

void Edit_Frm::Show_In_Box(const std::string& text) {
  const presentation::Day_Box box = main_frm_.Box(calendar_.Current_Box);
  box.Underline(!text.empty() && presentation::Small_Style(settings_));
  box.Write_Event(text, settings_, calendar_);
}

events::Day_Event Edit_Frm::Content() const {
  if (!Window.Loaded()) return {};
  return {basic::Double_Ampersands(Message_Txt.Text()), Every_Year_Chk.Value == 1};
}

}  // namespace editor
