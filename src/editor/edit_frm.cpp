#include "editor/edit_frm.h"

#include "basic/convert.h"
#include "basic/text.h"
#include "editor/count_words.h"
#include "presentation/box_style.h"

namespace editor {

Edit_Frm::Edit_Frm(toolkit::Backend& backend, presentation::Arrangement& arrangement,
                   presentation::Caption_Fitting& caption_fitting, events::Event_File& event_file,
                   const settings::Settings& settings, state::Calendar_State& calendar)
    : Window(backend, "Edit_Frm", toolkit::Form_Border::Fixed_Dialog), Date_Lbl(Window, "Date_Lbl"),
      Message_Txt(Window, "Message_Txt"), Every_Year_Chk(Window, "Every_Year_Chk"), Ok_Btn(Window, "Ok_Btn"),
      Cancel_Btn(Window, "Cancel_Btn"), Apply_Btn(Window, "Apply_Btn"), arrangement_(arrangement),
      caption_fitting_(caption_fitting), event_file_(event_file), settings_(settings), calendar_(calendar) {
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
  Window.On_Unload = [this] { Idle_Restart(); };
  Message_Txt.On_Change = [this] { Message_Txt_Change(); };
  Ok_Btn.On_Click = [this] { Apply_Btn_Click(); };
  Apply_Btn.On_Click = [this] { Apply_Btn_Click(); };
  Cancel_Btn.On_Click = [this] { Window.Unload(); };
}

/// Every opening starts from the same controls, whatever the last one left in them.
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
  event_file_.Check_For_Pre(basic::Double_Ampersands(Message_Txt.Text()));
  Show_In_Box(Message_Txt.Text());
  Apply_Btn.Enabled = false;
  calendar_.Alerted_Today = true;
  Window.Unload();
}

void Edit_Frm::Show_In_Box(const std::string& text) {
  toolkit::Label& caption = arrangement_.Box_Caption_Lbl[calendar_.Current_Box];
  toolkit::Label& box = arrangement_.Box_Lbl[calendar_.Current_Box];
  if (settings_.Tooltips == 1) {
    caption.ToolTipText = text;
    box.ToolTipText = text;
  }
  box.FontUnderline = !text.empty() && presentation::Small_Style(settings_);
  caption_fitting_.DotDotDot(basic::Double_Ampersands(text), caption);
}

std::string Edit_Frm::Message_Text() const { return Window.Loaded() ? Message_Txt.Text() : std::string(); }

bool Edit_Frm::Every_Year() const { return Window.Loaded() && Every_Year_Chk.Value == 1; }

void Edit_Frm::Tick_Every_Year() { Every_Year_Chk.Value = 1; }

}  // namespace editor
