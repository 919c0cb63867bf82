#include "presentation/main_frm.h"

namespace presentation {

namespace {

void Set_Title_Font(toolkit::Label& label) {
  label.FontName = "Arial";
  label.FontSize = 9.75;
  label.FontBold = true;
  label.FontItalic = true;
}

}  // namespace

Main_Frm::Main_Frm(toolkit::Backend& backend)
    : Window(backend, "Main_Frm"), Box_Lbl(Window, "Box_Lbl", box_count),
      Box_Caption_Lbl(Window, "Box_Caption_Lbl", box_count), Day_Lbl(Window, "Day_Lbl", days_of_week),
      Prev_Month_Lbl(Window, "Prev_Month_Lbl"), Which_Month_Lbl(Window, "Which_Month_Lbl"),
      Next_Month_Lbl(Window, "Next_Month_Lbl"), DotDotDot_Lbl(Window, "DotDotDot_Lbl"), Clear_Pic(Window, "Clear_Pic"),
      File_Pic(Window, "File_Pic"), Settings_Pic(Window, "Settings_Pic"),
      Exit_Pic(Window, "Exit_Pic"), title_row_{&Prev_Month_Lbl, &Which_Month_Lbl, &Next_Month_Lbl, &Day_Lbl[0],
                                               &Day_Lbl[1],     &Day_Lbl[2],      &Day_Lbl[3],     &Day_Lbl[4],
                                               &Day_Lbl[5],     &Day_Lbl[6]} {
  Window.BackColor = dark_grey;
  Window.Width = 6450;
  Window.Height = 6725;
  Make_Boxes();
  Make_Title_Row();
  Make_Hidden_Controls();
}

void Main_Frm::Make_Boxes() {
  for (int i = 0; i < box_count; ++i) {
    const double left = 90 + i % days_of_week * 900;
    const double top = 810 + i / days_of_week * 990;
    toolkit::Label& box = Box_Lbl[i];
    box.Place({left, top, 825, 915});
    box.FontName = "Arial";
    box.FontSize = 9.0;
    box.FontBold = true;
    box.Fixed_Border = true;
    toolkit::Label& caption = Box_Caption_Lbl[i];
    caption.Place({left + 45, top + 270, 735, 600});
    caption.Alignment = toolkit::Alignment::Centre;
    caption.Transparent = true;
    box.Accessible_Role = toolkit::Role::Cell;
    caption.Heard_With = &box;
  }
}

void Main_Frm::Clear_Tooltips() {
  for (int i = 0; i < box_count; ++i) Box(i).Clear_Tips();
}

void Main_Frm::Make_Title_Row() {
  for (int i = 0; i < days_of_week; ++i) {
    Day_Lbl[i].Place({90.0 + i * 900, 450, 825, 285});
    Day_Lbl[i].Accessible_Role = toolkit::Role::Column_Header;
  }
  Prev_Month_Lbl.Place({90, 90, 285, 285});
  Prev_Month_Lbl.Caption = "<";
  Next_Month_Lbl.Place({6030, 90, 285, 285});
  Next_Month_Lbl.Caption = ">";
  for (toolkit::Label* const arrow : {&Prev_Month_Lbl, &Next_Month_Lbl})
    arrow->Accessible_Role = toolkit::Role::Push_Button;
  Which_Month_Lbl.Place({495, 90, 5435, 285});
  for (toolkit::Label* const label : title_row_) {
    Set_Title_Font(*label);
    label->Alignment = toolkit::Alignment::Centre;
    label->Transparent = true;
    label->Fixed_Border = true;
    label->Mnemonics = false;
  }
}

void Main_Frm::Make_Hidden_Controls() {
  DotDotDot_Lbl.Place({4410, 6435, 1170, 195});
  DotDotDot_Lbl.Visible = false;
  Clear_Pic.Picture = platform::Stock_Picture::Clear;
  File_Pic.Picture = platform::Stock_Picture::File;
  Settings_Pic.Picture = platform::Stock_Picture::Settings;
  Exit_Pic.Picture = platform::Stock_Picture::Exit;
  for (toolkit::Picture_Box* const picture : {&Clear_Pic, &File_Pic, &Settings_Pic, &Exit_Pic}) {
    picture->Place({0, 0, 195, 195});
    picture->Visible = false;
  }
}

}  // namespace presentation
