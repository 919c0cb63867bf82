#include "presentation/colours.h"

namespace presentation {

namespace {

constexpr std::int32_t no_colour = -1;
constexpr toolkit::Colour dark_grey = 4934475;

}  // namespace

Colours::Colours(Arrangement& arrangement, const settings::Settings& settings, const state::Calendar_State& calendar)
    : arrangement_(arrangement), settings_(settings), calendar_(calendar) {}

void Colours::Set_Colours() {
  Colour_Boxes();
  Colour_Nums();
  Colour_Texts();
  Colour_Menus();
  if (arrangement_.Main_Frm.System().Active_Form() != &arrangement_.Main_Frm) Colour_Inactive();
}

void Colours::Colour_Boxes() {
  for (int i = 0; i < box_count; ++i) arrangement_.Box_Lbl[i].BackColor = settings_.Normal;
}

void Colours::Colour_Nums() {
  for (int i = 0; i < box_count; ++i) arrangement_.Box_Lbl[i].ForeColor = settings_.Num;
}

void Colours::Colour_Texts() {
  for (int i = 0; i < box_count; ++i) arrangement_.Box_Caption_Lbl[i].ForeColor = settings_.Text;
}

void Colours::Colour_Menus() {
  if (settings_.Menu_Colour_Source != 0) {
    arrangement_.Main_Frm.BackColor = settings_.Back;
    Colour_Title_Row(settings_.Fore);
    return;
  }
  const std::int32_t back = calendar_.Desktop_Back_Colour;
  arrangement_.Main_Frm.BackColor = back == no_colour ? dark_grey : back;
  Colour_Title_Row(calendar_.Desktop_Text_Colour);
}

void Colours::Colour_Inactive() { Colour_Title_Row(settings_.Inactive); }

void Colours::Colour_Title_Row(toolkit::Colour colour) {
  for (toolkit::Label* const label : arrangement_.Title_Row()) label->ForeColor = colour;
}

}  // namespace presentation
