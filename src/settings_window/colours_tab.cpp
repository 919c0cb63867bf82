#include "settings_window/colours_tab.h"

#include "basic/convert.h"
#include "settings_window/box_example.h"

namespace settings_window {

namespace {

using calendar::Colour_Part;
using settings::Settings;
using toolkit::Bounds;
using toolkit::Colour;

constexpr Colour dark_grey = 4934475;
constexpr Colour no_colour = -1;

/// The places of the colours in their order, which is that of Colour_Slot.
enum Slot_Number { today_slot, normal_slot, num_slot, text_slot, back_slot, fore_slot, inactive_slot };

/// What is saved before the last of the colours, in this order, and the part of the calendar that it paints.
struct Saved_Colour {
  Slot_Number Slot;
  Colour_Part Part;
};

constexpr std::array<Saved_Colour, 6> saved_first{{{normal_slot, Colour_Part::Boxes},
                                                   {today_slot, Colour_Part::Today},
                                                   {num_slot, Colour_Part::Numbers},
                                                   {text_slot, Colour_Part::Texts},
                                                   {back_slot, Colour_Part::Title_Row},
                                                   {fore_slot, Colour_Part::Title_Row}}};

void Make_Label(toolkit::Label& label, const Bounds& place, const char* caption) {
  label.Place(place);
  label.Caption = caption;
  label.Mnemonics = false;
}

void Make_Frame(toolkit::Frame& frame, const Bounds& place, const char* caption) {
  frame.Place(place);
  frame.Caption = caption;
}

/// A box of the miniature and the event on it, as the calendar draws them.
void Make_Box(toolkit::Label& box, toolkit::Label& caption) {
  Look_Like_A_Day_Box(box);
  caption.Transparent = true;
}

}  // namespace

Colours_Tab::Colours_Tab(toolkit::Frame& page, calendar::Desk& desk, settings::Stored_Settings& stored,
                         const state::Calendar_State& calendar, platform::Pictures& pictures,
                         platform::Event_Loop& loop)
    : Frame8(page, "Frame8"), Col_Today_Pic(Frame8, "Col_Today_Pic"), Col_Normal_Pic(Frame8, "Col_Normal_Pic"),
      Col_Num_Pic(Frame8, "Col_Num_Pic"), Col_Text_Pic(Frame8, "Col_Text_Pic"), Col_Today_Lbl(Frame8, "Col_Today_Lbl"),
      Col_Normal_Lbl(Frame8, "Col_Normal_Lbl"), Col_Num_Lbl(Frame8, "Col_Num_Lbl"),
      Col_Text_Lbl(Frame8, "Col_Text_Lbl"), Frame7(page, "Frame7"), Preview_Prev_Lbl(Frame7, "Preview_Prev_Lbl"),
      Preview_Month_Lbl(Frame7, "Preview_Month_Lbl"), Preview_Style0_Lbl(Frame7, "Preview_Style0_Lbl"),
      Preview_Caption0_Lbl(Frame7, "Preview_Caption0_Lbl"), Preview_Style1_Lbl(Frame7, "Preview_Style1_Lbl"),
      Preview_Caption1_Lbl(Frame7, "Preview_Caption1_Lbl"), Preview_Today_Lbl(Frame7, "Preview_Today_Lbl"),
      Preview_Caption_Today_Lbl(Frame7, "Preview_Caption_Today_Lbl"), Frame9(page, "Frame9"),
      Col_Sys_Opt(Frame9, "Col_Sys_Opt"), Col_Other_Opt(Frame9, "Col_Other_Opt"), Col_Back_Pic(Frame9, "Col_Back_Pic"),
      Col_Fore_Pic(Frame9, "Col_Fore_Pic"), Col_Inactive_Pic(Frame9, "Col_Inactive_Pic"),
      Col_Back_Lbl(Frame9, "Col_Back_Lbl"), Col_Fore_Lbl(Frame9, "Col_Fore_Lbl"),
      Col_Inactive_Lbl(Frame9, "Col_Inactive_Lbl"), Frame3(page, "Frame3"), Pal(Frame3, "Pal"),
      lbColor(Frame3, "lbColor"), txCol(Frame3, "txCol", 1), Default_Cols_Btn(page, "Default_Cols_Btn"), desk_(desk),
      stored_(stored), calendar_(calendar), loop_(loop) {
  Make_Samples();
  Make_Title_Row_Frame();
  Make_Palette_Frame();
  Pal.Loaded = Make_Palette(pictures, page.Window.System());
  Make_Miniature();
  Default_Cols_Btn.Place({1665, 3420, 1560, 345});
  Default_Cols_Btn.Caption = "Restore Defaults";
  Tie_Events();
}

void Colours_Tab::Make_Samples() {
  Make_Frame(Frame8, {0, 0, 2400, 2175}, "Calendar Boxes");
  for (int i = today_slot; i <= text_slot; ++i) At(i).Sample.Place({180, 405.0 + 450 * i, 240, 240});
  Make_Label(Col_Today_Lbl, {540, 405, 1770, 240}, "Today Colour");
  Make_Label(Col_Normal_Lbl, {540, 855, 1770, 240}, "Nomal Day Colour");
  Make_Label(Col_Num_Lbl, {540, 1305, 1770, 240}, "Numbering Colour");
  Make_Label(Col_Text_Lbl, {540, 1755, 1770, 240}, "Text Colour");
  Col_Today_Lbl.FontBold = true;
  for (const Slot& slot : slots_) {
    slot.Sample.Opaque = true;
    slot.Sample.Fixed_Border = true;
    slot.Sample.MousePointer = toolkit::Pointer::Cross_Hair;
    slot.Sample.Heard_With = &slot.Label;
  }
}

void Colours_Tab::Make_Title_Row_Frame() {
  Make_Frame(Frame9, {0, 2250, 3300, 1590}, "Top Menu");
  Col_Sys_Opt.Place({90, 405, 1770, 195});
  Col_Sys_Opt.Caption = "Use System Colours";
  Col_Sys_Opt.Value = true;
  Col_Other_Opt.Place({1935, 405, 1230, 195});
  Col_Other_Opt.Caption = "Use Others...";
  Col_Back_Pic.Place({135, 810, 240, 240});
  Col_Fore_Pic.Place({1800, 810, 240, 240});
  Col_Inactive_Pic.Place({135, 1215, 240, 240});
  Make_Label(Col_Back_Lbl, {495, 810, 1215, 240}, "Background");
  Make_Label(Col_Fore_Lbl, {2160, 810, 1080, 240}, "Foreground");
  Make_Label(Col_Inactive_Lbl, {495, 1215, 1125, 240}, "Inactive Text");
  Col_Back_Pic.Enabled = false;
  Col_Fore_Pic.Enabled = false;
}

void Colours_Tab::Make_Palette_Frame() {
  Make_Frame(Frame3, {3375, 2250, 1770, 1590}, "Select Colour");
  Pal.Place({135, 315, 1545, 810});
  Pal.Call_It("Palette");
  Pal.MousePointer = toolkit::Pointer::Cross_Hair;
  lbColor.Place({135, 1170, 1500, 285});
  lbColor.Call_It("Colour under the pointer");
  lbColor.Opaque = true;
  lbColor.Fixed_Border = true;
  lbColor.MousePointer = toolkit::Pointer::Cross_Hair;
  txCol[0].Place({180, 315, 1500, 285});
  txCol[0].Text = "0";
  txCol[0].Visible = false;
}

void Colours_Tab::Make_Miniature() {
  Make_Frame(Frame7, {2475, 0, 2670, 2175}, "Preview");
  Make_Label(Preview_Prev_Lbl, {180, 450, 285, 285}, "<");
  Make_Label(Preview_Month_Lbl, {585, 450, 1905, 285}, "April");
  for (toolkit::Label* const label : {&Preview_Prev_Lbl, &Preview_Month_Lbl}) {
    label->FontName = "Arial";
    label->FontSize = 9.75;
    label->FontBold = true;
    label->FontItalic = true;
    label->Fixed_Border = true;
    label->Alignment = toolkit::Alignment::Centre;
  }
  Make_Label(Preview_Style0_Lbl, {180, 1080, 1275, 330}, " 1)");
  Make_Label(Preview_Caption0_Lbl, {540, 1125, 870, 285}, "This is an...");
  Make_Box(Preview_Style0_Lbl, Preview_Caption0_Lbl);
  Make_Label(Preview_Style1_Lbl, {1665, 1080, 825, 915}, " 1");
  Make_Label(Preview_Caption1_Lbl, {1710, 1350, 735, 600}, "This is an example.");
  Make_Box(Preview_Style1_Lbl, Preview_Caption1_Lbl);
  Preview_Caption1_Lbl.Alignment = toolkit::Alignment::Centre;
  Make_Label(Preview_Today_Lbl, {180, 1620, 1275, 330}, " ?)");
  Make_Label(Preview_Caption_Today_Lbl, {540, 1665, 870, 285}, "This is an...");
  Make_Box(Preview_Today_Lbl, Preview_Caption_Today_Lbl);
}

void Colours_Tab::Tie_Events() {
  for (int i = today_slot; i <= inactive_slot; ++i) {
    const Slot& slot = At(i);
    slot.Label.On_Click = [this, i] { Pick_Slot(i); };
    slot.Sample.On_Click = [this, i] { Pick_Slot(i); };
  }
  Pal.On_Mouse_Move = [this](const toolkit::Mouse_Event& event) { Pal_MouseMove(event); };
  Pal.On_Click = [this] { Pal_Click(); };
  Col_Sys_Opt.On_Click = [this] { Col_Sys_Opt_Click(); };
  Col_Other_Opt.On_Click = [this] { Col_Other_Opt_Click(); };
  Default_Cols_Btn.On_Click = [this] { Default_Cols_Btn_Click(); };
}

/// Takes off a ramp that was drawn there: it would hide the colour.
void Colours_Tab::ShowColors(Colour colour) {
  if (toolkit::Is_System_Colour(colour)) return;
  lbColor.Cls();
  lbColor.BackColor = colour;
  // Only the forms for which the window has a text box are written.
  const Colour_Forms forms = Forms_Of(colour);
  for (int i = 0; i < txCol.Count(); ++i) txCol[i].Text = forms[static_cast<std::size_t>(i)];
}

void Colours_Tab::ShowGradient(Colour from, Colour to) {
  if (toolkit::Is_System_Colour(from) || toolkit::Is_System_Colour(to)) return;
  toolkit::Backend& system = lbColor.Window.System();
  system.Show_Busy(true);
  ShowColors(to);
  Draw_Ramp(lbColor, from, to);
  Draw_Ruler(lbColor);
  system.Show_Busy(false);
}

void Colours_Tab::Reset_Labels() {
  for (const Slot& slot : slots_) slot.Label.FontBold = false;
}

/// The window may have gone by the end of the events that are let run.
void Colours_Tab::Pal_MouseMove(const toolkit::Mouse_Event& event) {
  platform::Event_Loop& loop = loop_;
  const Colour colour = Pal.Point(event.X, event.Y);
  if (event.Shift) ShowGradient(0, colour);
  else ShowColors(colour);
  loop.Wait_Events(0);
}

void Colours_Tab::Pick_Slot(int number) {
  Reset_Labels();
  At(number).Label.FontBold = true;
  Colour_Slot = number;
}

void Colours_Tab::Pal_Click() {
  Set_Colour(At(Colour_Slot.Value()), basic::To_Int32(txCol[0].Text()));
  Copy_Title_Row_Unless_System();
}

void Colours_Tab::Set_Colour(const Slot& slot, Colour colour) {
  slot.Sample.BackColor = colour;
  for (toolkit::Label* const label : slot.Backs) label->BackColor = colour;
  for (toolkit::Label* const label : slot.Fores) label->ForeColor = colour;
}

void Colours_Tab::Col_Sys_Opt_Click() {
  Show_System_Title_Row();
  Enable_Title_Row_Samples(false);
}

void Colours_Tab::Col_Other_Opt_Click() {
  Show_Other_Title_Row();
  Enable_Title_Row_Samples(true);
}

void Colours_Tab::Enable_Title_Row_Samples(bool enabled) {
  Col_Back_Pic.Enabled = enabled;
  Col_Back_Lbl.Enabled = enabled;
  Col_Fore_Pic.Enabled = enabled;
  Col_Fore_Lbl.Enabled = enabled;
}

void Colours_Tab::Show_System_Title_Row() {
  const Colour back = calendar_.Desktop_Back_Colour;
  Colour_Title_Row(back == no_colour ? dark_grey : back, calendar_.Desktop_Text_Colour);
}

void Colours_Tab::Show_Other_Title_Row() { Colour_Title_Row(Col_Back_Pic.BackColor, Col_Fore_Pic.BackColor); }

void Colours_Tab::Copy_Title_Row_Unless_System() {
  if (!Col_Sys_Opt.Value) Show_Other_Title_Row();
}

void Colours_Tab::Colour_Title_Row(Colour back, Colour fore) {
  for (toolkit::Label* const label : {&Preview_Prev_Lbl, &Preview_Month_Lbl}) {
    label->BackColor = back;
    label->ForeColor = fore;
  }
}

void Colours_Tab::Default_Cols_Btn_Click() {
  for (const Slot& slot : slots_) Set_Colour(slot, basic::To_Int32(settings::Key_Of(slot.Setting).Default));
  Copy_Title_Row_Unless_System();
}

void Colours_Tab::Load_Settings() {
  for (const Slot& slot : slots_) slot.Sample.BackColor = stored_.Values.*slot.Setting;
  for (const Slot_Number i : {normal_slot, today_slot, text_slot}) Set_Colour(At(i), At(i).Sample.BackColor);
  if (stored_.Values.Menu_Colour_Source != 1) {
    Col_Sys_Opt.Value = true;
    Show_System_Title_Row();
  } else {
    Col_Other_Opt.Value = true;
    Show_Other_Title_Row();
  }
}

void Colours_Tab::Save_Colours() {
  Settings& values = stored_.Values;
  for (const Saved_Colour& saved : saved_first) {
    const Slot& slot = At(saved.Slot);
    if (slot.Sample.BackColor() == values.*slot.Setting) continue;
    values.*slot.Setting = slot.Sample.BackColor;
    desk_.Recolour(saved.Part);
    stored_.Save(slot.Setting);
  }
  if (Col_Inactive_Pic.BackColor() != values.Inactive) {
    stored_.Set(&Settings::Inactive, Col_Inactive_Pic.BackColor());
    desk_.Recolour(Colour_Part::Inactive_Title);
  }
  Save_Source();
  desk_.Recolour(Colour_Part::Today);
}

void Colours_Tab::Save_Source() {
  const basic::Int16 source = Col_Sys_Opt.Value ? 0 : 1;
  if (source == stored_.Values.Menu_Colour_Source) return;
  stored_.Set(&Settings::Menu_Colour_Source, source);
  if (source == 1) {
    stored_.Set(&Settings::Back, Col_Back_Pic.BackColor());
    stored_.Set(&Settings::Fore, Col_Fore_Pic.BackColor());
  }
  desk_.Recolour(Colour_Part::Title_Row);
}

}  // namespace settings_window
