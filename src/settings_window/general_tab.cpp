#include "settings_window/general_tab.h"

#include "basic/convert.h"

namespace settings_window {

namespace {

using platform::Box_Answer;
using platform::Box_Buttons;
using platform::Box_Icon;
using settings::Settings;

constexpr toolkit::Colour navy = toolkit::Rgb(0, 0, 128);

constexpr const char* restart_notice = "Changes may not take effect till you restart your computer.";
constexpr const char* icons_warning =
    "Warning, this may not work on some machines and if it does it may conflict with the 'Use System Colours' option. "
    "Do "
    "you still want to proceed?";

/// A list shows the entry of a stored number, the first for a number that it doesn't have.
void Select_Number(toolkit::Combo_Box& list, basic::Int16 index) {
  const bool known = index >= 0 && index.Value() < list.ListCount();
  list.Select(known ? index.Value() : 0);
}

/// A stored text that is no entry of its list stays what it is: it becomes one.
void Select_Or_Add(toolkit::Combo_Box& list, const std::string& text) {
  int item = 0;
  while (item < list.ListCount() && list.List(item) != text) ++item;
  if (item == list.ListCount()) list.Add_Item(text);
  list.Select(item);
}

int Tick_Of(basic::Int16 value) { return value == 0 ? 0 : 1; }

}  // namespace

General_Tab::General_Tab(toolkit::Frame& page, Wallpaper_Page& packs_page, calendar::Desk& desk,
                         settings::Stored_Settings& stored, settings::Run_At_Startup& run_at_startup,
                         platform::Message_Box& message_box)
    : Frame11(page, "Frame11"), Bar_Preview_Lbl(Frame11, "Bar_Preview_Lbl"), Bar_Time_Chk(Frame11, "Bar_Time_Chk"),
      Bar_Time_Cbo(Frame11, "Bar_Time_Cbo"), Label2(Frame11, "Label2"), Bar_Date_Cbo(Frame11, "Bar_Date_Cbo"),
      Frame5(page, "Frame5"), Startup_Chk(Frame5, "Startup_Chk"), Splash_Chk(Frame5, "Splash_Chk"),
      Alert_Chk(Frame5, "Alert_Chk"), Trans_Icons_Chk(Frame5, "Trans_Icons_Chk"),
      Carriage_Return_Chk(Frame5, "Carriage_Return_Chk"), Allow_Dragging_Chk(Frame5, "Allow_Dragging_Chk"),
      Auto_Compact_Chk(Frame5, "Auto_Compact_Chk"), Timeout_Value_Cbo(Frame5, "Timeout_Value_Cbo"),
      Timeout_Format_Cbo(Frame5, "Timeout_Format_Cbo"), packs_page_(packs_page), desk_(desk), stored_(stored),
      run_at_startup_(run_at_startup), message_box_(message_box) {
  Make_Title_Frame();
  Make_General_Frame();
  Tie_Events();
}

void General_Tab::Make_Title_Frame() {
  Frame11.Place({0, 0, 5145, 1230});
  Frame11.Caption = "Title Bar";
  Bar_Preview_Lbl.Place({90, 315, 4965, 285});
  Bar_Preview_Lbl.Caption = "13:56:21 - 11th May - 2002";
  Bar_Preview_Lbl.Alignment = toolkit::Alignment::Centre;
  Bar_Preview_Lbl.FontBold = true;
  Bar_Preview_Lbl.BackColor = navy;
  Bar_Preview_Lbl.ForeColor = toolkit::white;
  Bar_Preview_Lbl.Mnemonics = false;
  Bar_Time_Chk.Place({90, 830, 690, 210});
  Bar_Time_Chk.Caption = "Time:";
  Bar_Time_Cbo.Call_It("Time format");
  Bar_Time_Cbo.Place({765, 765, 1320, 330});
  Label2.Place({2250, 825, 420, 195});
  Label2.Caption = "Date:";
  Bar_Date_Cbo.Place({2655, 765, 2400, 330});
  for (const char* const item : {"H:mm", "HH:mm", "H:mm:ss", "HH:mm:ss", "h:mm AM/PM", "h:mm:ss AM/PM"})
    Bar_Time_Cbo.Add_Item(item);
  for (const char* const item :
       {"mm/yyyy", "dd/mm/yyyy", "Month - yyyy", "d Month - yyyy", "Weekday - d month - yyyy", "Use System Format"})
    Bar_Date_Cbo.Add_Item(item);
}

void General_Tab::Make_General_Frame() {
  Frame5.Place({0, 1305, 5145, 2535});
  Frame5.Caption = "General Settings";
  const auto make = [](toolkit::Check_Box& box, const toolkit::Bounds& place, const char* caption) {
    box.Place(place);
    box.Caption = caption;
  };
  make(Startup_Chk, {135, 360, 1680, 195}, "Run at Startup");
  make(Splash_Chk, {1890, 360, 1635, 240}, "Splash Screen");
  make(Alert_Chk, {135, 720, 3165, 240}, "Alert me when a date Comes up");
  make(Trans_Icons_Chk, {135, 1080, 2940, 240}, "Make Icon Backs Transparent");
  make(Carriage_Return_Chk, {135, 1440, 4875, 240}, "Don't close the event window with a Carriage Return.");
  make(Allow_Dragging_Chk, {135, 1800, 4875, 240}, "Allow dragging when Manual Position is not selected");
  make(Auto_Compact_Chk, {135, 2160, 3345, 240}, "Switch into Compact Mode after");
  Timeout_Value_Cbo.Call_It("Compact Mode after");
  Timeout_Format_Cbo.Call_It("Unit of time");
  Timeout_Value_Cbo.Place({3330, 2115, 645, 330});
  Timeout_Value_Cbo.Enabled = false;
  Timeout_Format_Cbo.Place({4005, 2115, 1050, 330});
  Timeout_Format_Cbo.Enabled = false;
  Timeout_Format_Cbo.Add_Item("Seconds");
  Timeout_Format_Cbo.Add_Item("Minutes");
}

void General_Tab::Tie_Events() {
  for (toolkit::Control* const control :
       {static_cast<toolkit::Control*>(&Bar_Time_Chk), static_cast<toolkit::Control*>(&Bar_Time_Cbo),
        static_cast<toolkit::Control*>(&Bar_Date_Cbo)})
    control->On_Click = [this] { Show_Bar_Preview(); };
  Auto_Compact_Chk.On_Click = [this] { Auto_Compact_Chk_Click(); };
  packs_page_.Other_Display_Chk.On_Click = [this] { Other_Display_Chk_Click(); };
  Trans_Icons_Chk.On_Mouse_Up = [this](const toolkit::Mouse_Event& event) { Trans_Icons_Chk_Released(event); };
}

void General_Tab::Show_Bar_Preview() {
  Bar_Preview_Lbl.Caption = desk_.Title_By(Ticked(Bar_Time_Chk), Bar_Time_Cbo.Text(), Bar_Date_Cbo.Text());
}

void General_Tab::Auto_Compact_Chk_Click() {
  Timeout_Value_Cbo.Enabled = Ticked(Auto_Compact_Chk);
  Timeout_Format_Cbo.Enabled = Ticked(Auto_Compact_Chk);
}

void General_Tab::Other_Display_Chk_Click() {
  packs_page_.Display_Cbo.Enabled = Ticked(packs_page_.Other_Display_Chk);
  packs_page_.Theme_Display_Lbl.Enabled = !Ticked(packs_page_.Other_Display_Chk);
}

/// A release elsewhere has left the tick as it was.
void General_Tab::Trans_Icons_Chk_Released(const toolkit::Mouse_Event& event) {
  const toolkit::Bounds& box = Trans_Icons_Chk.In_Twips();
  if (event.Button != toolkit::Mouse_Button::Left) return;
  if (!toolkit::Bounds{0, 0, box.Width, box.Height}.Contains(event.X, event.Y)) return;
  if (!Ticked(Trans_Icons_Chk)) {
    message_box_.Show("Meridex", restart_notice, Box_Icon::Information, Box_Buttons::OK);
    return;
  }
  const Box_Answer answer = message_box_.Show("Meridex", icons_warning, Box_Icon::Question, Box_Buttons::Yes_No_Cancel);
  if (answer != Box_Answer::Yes) Trans_Icons_Chk.Value = 0;
}

void General_Tab::Fill_Lists() {
  for (int number = 1; number <= 60; ++number) Timeout_Value_Cbo.Add_Item(basic::To_Text(number));
  Timeout_Value_Cbo.Select_Text("30");
  Timeout_Format_Cbo.Select_Text("Seconds");
}

void General_Tab::Load() {
  const Settings& values = stored_.Values;
  Fill_Lists();
  Carriage_Return_Chk.Value = Tick_Of(values.Carriage_Return);
  Select_Or_Add(Timeout_Value_Cbo, basic::To_Text(values.Timeout_Value));
  Select_Number(Timeout_Format_Cbo, values.Timeout_Format);
  Load_Ticks();
  Select_Or_Add(Bar_Time_Cbo, values.Bar_Time_Format);
  Select_Or_Add(Bar_Date_Cbo, values.Bar_Date_Format);
  Bar_Time_Chk.Value = values.Bar_Time ? 1 : 0;
  packs_page_.Other_Display_Chk.Value = values.Use_Other_Display_Mode ? 1 : 0;
  Select_Number(packs_page_.Display_Cbo, values.Other_Display_Mode);
}

void General_Tab::Load_Ticks() {
  const Settings& values = stored_.Values;
  Trans_Icons_Chk.Value = Tick_Of(values.Trans_Icons);
  Splash_Chk.Value = Tick_Of(values.Show_Splash);
  Alert_Chk.Value = Tick_Of(values.Show_Alerts);
  Auto_Compact_Chk.Value = Tick_Of(values.Auto_Compact);
  Allow_Dragging_Chk.Value = Tick_Of(values.Allow_Dragging);
}

void General_Tab::Get_Startup_Value() { Startup_Chk.Value = run_at_startup_.Run_Value_Is_There() ? 1 : 0; }

/// Returns whether it differed.
bool General_Tab::Save(basic::Int16 Settings::*variable, basic::Int16 value) {
  if (stored_.Values.*variable == value) return false;
  stored_.Set(variable, value);
  return true;
}

void General_Tab::Save_General_Settings(basic::Int16 tooltips) {
  Save(&Settings::Timeout_Value, basic::To_Int16(Timeout_Value_Cbo.Text()));
  Save(&Settings::Carriage_Return, Carriage_Return_Chk.Value());
  Save(&Settings::Timeout_Format, Timeout_Format_Cbo.ListIndex());
  Save(&Settings::Trans_Icons, Trans_Icons_Chk.Value());
  Save(&Settings::Show_Splash, Splash_Chk.Value());
  Save(&Settings::Show_Alerts, Alert_Chk.Value());
  Save(&Settings::Allow_Dragging, Allow_Dragging_Chk.Value());
  if (Save(&Settings::Auto_Compact, Auto_Compact_Chk.Value())) desk_.Update_Timeout();
  Save(&Settings::Tooltips, tooltips);
  run_at_startup_.Save_Run_Value(Ticked(Startup_Chk));
}

void General_Tab::Apply_Display_Mode() {
  stored_.Set(&Settings::Use_Other_Display_Mode, Ticked(packs_page_.Other_Display_Chk));
  stored_.Set(&Settings::Other_Display_Mode, packs_page_.Display_Cbo.ListIndex());
}

void General_Tab::Apply_Title_Bar() {
  stored_.Set(&Settings::Bar_Time, Ticked(Bar_Time_Chk));
  stored_.Set(&Settings::Bar_Time_Format, Bar_Time_Cbo.Text());
  stored_.Set(&Settings::Bar_Date_Format, Bar_Date_Cbo.Text());
}

}  // namespace settings_window
