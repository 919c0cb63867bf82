#include "presentation/day_box.h"

#include "basic/convert.h"
#include "basic/text.h"
#include "presentation/caption_fit.h"

namespace presentation {

void Day_Box::Reset() const {
  Number.Visible = true;
  Caption.Visible = true;
  Number.BackColor = toolkit::white;
  Number.Caption = "";
  Caption.Caption = "";
}

void Day_Box::Set_Day(int day) const { Number.Caption = " " + basic::To_Text(day) + " "; }

void Day_Box::Hide_If_Empty() const {
  if (Number.Caption != "") return;
  Number.Visible = false;
  Caption.Visible = false;
}

void Day_Box::Write_Event(std::string_view text, const settings::Settings& settings,
                          const state::Calendar_State& calendar) const {
  if (settings.Tooltips == settings::standard_tips) Set_Tips(basic::Single_Ampersands(text));
  DotDotDot(main_frm_, text, Caption, DDD_Style(settings, calendar));
  main_frm_.Box_Event[static_cast<std::size_t>(Number.Index)] = text;
}

std::string Day_Box::Whole_Event() const {
  return Caption.Caption == "" ? std::string() : main_frm_.Box_Event[static_cast<std::size_t>(Number.Index)];
}

void Day_Box::Clear_Event() const {
  Caption.Caption = "";
  Clear_Tips();
  Underline(false);
}

void Day_Box::Set_Tips(const std::string& text) const {
  Caption.ToolTipText = text;
  Number.ToolTipText = text;
}

}  // namespace presentation
