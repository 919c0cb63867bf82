#include "presentation/colours.h"

#include "platform/desktop_shell.h"

namespace presentation {

Colours::Colours(Main_Frm& main_frm, const settings::Settings& settings, state::Calendar_State& calendar)
    : main_frm_(main_frm), settings_(settings), calendar_(calendar) {}

void Colours::Set_Colours() {
  Colour_Boxes();
  Colour_Nums();
  Colour_Texts();
  Colour_Menus_By_Activity();
}

void Colours::Colour_Boxes() {
  for (int i = 0; i < box_count; ++i) main_frm_.Box_Lbl[i].BackColor = settings_.Normal;
}

void Colours::Colour_Nums() {
  for (int i = 0; i < box_count; ++i) main_frm_.Box_Lbl[i].ForeColor = settings_.Num;
}

void Colours::Colour_Texts() {
  for (int i = 0; i < box_count; ++i) main_frm_.Box_Caption_Lbl[i].ForeColor = settings_.Text;
}

void Colours::Colour_Menus() {
  if (settings_.Menu_Colour_Source != 0) {
    main_frm_.Window.BackColor = settings_.Back;
    Colour_Title_Row(settings_.Fore);
    return;
  }
  const std::int32_t back = calendar_.Desktop_Back_Colour;
  main_frm_.Window.BackColor = back == platform::no_colour ? dark_grey : back;
  Colour_Title_Row(calendar_.Desktop_Text_Colour);
}

void Colours::Colour_Menus_By_Activity() {
  Colour_Menus();
  if (!Is_Active()) Colour_Inactive();
}

void Colours::Colour_Inactive() { Colour_Title_Row(settings_.Inactive); }

void Colours::Follow_Active_State() {
  if (calendar_.Window_Inactive && Is_Active()) {
    Colour_Menus();
    calendar_.Window_Inactive = false;
  }
  if (!calendar_.Window_Inactive && !Is_Active()) {
    Colour_Inactive();
    calendar_.Window_Inactive = true;
  }
}

bool Colours::Is_Active() const { return main_frm_.Window.System().Active_Form() == &main_frm_.Window; }

void Colours::Colour_Title_Row(toolkit::Colour colour) {
  for (toolkit::Label* const label : main_frm_.Title_Row()) label->ForeColor = colour;
}

}  // namespace presentation
