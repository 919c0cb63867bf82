#include "presentation/caption_fit.h"

#include "basic/run_error.h"
#include "presentation/box_style.h"

namespace presentation {

namespace {

constexpr std::string_view line_break = "\r\n";
constexpr std::string_view dots = "...";

/// Captions have the window's own font.
class Window_Measure final : public Text_Measure {
 public:
  explicit Window_Measure(const toolkit::Form& window) : window_(window) {}

  [[nodiscard]] double Width(std::string_view text) const override { return window_.Text_Width(text); }
  [[nodiscard]] std::size_t Longest_Beginning(std::string_view text, double limit) const override {
    return window_.Longest_Beginning(text, limit);
  }

 private:
  const toolkit::Form& window_;
};

}  // namespace

std::string_view Get_Line(std::string_view text, double width, const Text_Measure& measure) {
  // The line under construction is always a beginning of the text, so only its length is kept.
  std::size_t line = 0;
  std::size_t last_good = 0;
  std::string_view first_word;
  while (measure.Width(text.substr(0, line)) <= width) {
    const std::size_t blank = text.find(' ', line);
    if (blank == std::string_view::npos) return text;
    last_good = line;
    first_word = text.substr(line, blank - line);
    line = blank + 1;
  }
  if (last_good != 0) return text.substr(0, last_good);
  return first_word.substr(0, measure.Longest_Beginning(first_word, width));
}

std::string Fit_Three_Lines(std::string_view text, double width, const Text_Measure& measure) {
  const auto fits = [&](std::string_view rest) { return measure.Width(rest) < width; };
  std::string_view lines[3];
  std::string_view rest = text;
  for (std::string_view& line : lines) {
    if (fits(rest)) {
      line = rest;
      rest = {};
      break;
    }
    line = Get_Line(rest, width, measure);
    if (&line != &lines[2]) rest.remove_prefix(line.size());
  }
  std::string caption(lines[0]);
  caption.append(line_break).append(lines[1]).append(line_break);
  const bool cut = !rest.empty();
  if (!cut || lines[2].size() < 4) caption.append(lines[2]);
  else caption.append(lines[2].substr(0, lines[2].size() - dots.size()));
  if (cut) caption.append(dots);
  return caption;
}

std::string Fit_One_Line(std::string_view text, double width, const Text_Measure& measure) {
  if (measure.Width(text) < width) return std::string(text);
  const std::size_t length = measure.Longest_Beginning(text, width);
  if (length < dots.size()) throw basic::Run_Error(basic::Error_Number::Invalid_Procedure_Call);
  return std::string(text.substr(0, length - dots.size())).append(dots);
}

basic::Int16 DDD_Style(const settings::Settings& settings, const state::Calendar_State& calendar) {
  if (settings.Use_Themes == 0 || settings.Use_Theme_Style == 0) return settings.Style;
  if (settings.Use_Themes == 1 && settings.Use_Theme_Style == 1) return calendar.Pack_Box_Style;
  return 0;
}

void DotDotDot(Main_Frm& main_frm, std::string_view text, toolkit::Label& caption, basic::Int16 style) {
  const Window_Measure measure(main_frm.Window);
  const double width = caption.In_Twips().Width;
  caption.Caption = style == square_box ? Fit_Three_Lines(text, width, measure) : Fit_One_Line(text, width, measure);
  main_frm.DotDotDot_Lbl.Caption = text;
}

}  // namespace presentation
