#include "presentation/caption_fitting.h"

#include "presentation/box_style.h"

namespace presentation {

basic::Int16 DDD_Style(const settings::Settings& settings, const state::Calendar_State& calendar) {
  if (settings.Use_Themes == 0 || settings.Use_Theme_Style == 0) return settings.Style;
  if (settings.Use_Themes == 1 && settings.Use_Theme_Style == 1) return calendar.Pack_Box_Style;
  return 0;
}

Caption_Fitting::Caption_Fitting(Arrangement& arrangement, const settings::Settings& settings,
                                 const state::Calendar_State& calendar)
    : arrangement_(arrangement), settings_(settings), calendar_(calendar) {}

void Caption_Fitting::DotDotDot(std::string_view text, toolkit::Label& caption) {
  const double width = caption.In_Twips().Width;
  caption.Caption = DDD_Style(settings_, calendar_) == square_box ? Fit_Three_Lines(text, width, *this)
                                                                  : Fit_One_Line(text, width, *this);
  arrangement_.DotDotDot_Lbl.Caption = text;
}

double Caption_Fitting::Width(std::string_view text) const { return arrangement_.Main_Frm.Text_Width(text); }

std::size_t Caption_Fitting::Longest_Beginning(std::string_view text, double limit) const {
  return arrangement_.Main_Frm.Longest_Beginning(text, limit);
}

}  // namespace presentation
