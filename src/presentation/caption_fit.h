// The fitting of an event's text into the caption of its day box: a computation over a measure of text widths, and its
// writing into the caption.
//
// The tests for a fit differ on purpose, and the difference shows where a text is exactly as wide as its box: a whole
// text or a rest fits only if it is narrower, while a line under construction goes on growing at the exact width.
#pragma once

#include <string>
#include <string_view>

#include "presentation/main_frm.h"

namespace presentation {

/// Widths of texts in the window's font, in twips. A longer text is never narrower than its beginning.
class Text_Measure {
 public:
  [[nodiscard]] virtual double Width(std::string_view text) const = 0;

  /// The number of characters of the longest beginning that is narrower than `limit`.
  [[nodiscard]] virtual std::size_t Longest_Beginning(std::string_view text, double limit) const = 0;

 protected:
  ~Text_Measure() = default;
};

/// The part at the front of the text that makes one line of that width: as many whole words as fit, with the blank after
/// the last, or of a first word that is too wide as much as fits. A text whose last blank still lies
/// on the line comes back whole, however wide it is.
std::string_view Get_Line(std::string_view text, double width, const Text_Measure& measure);

/// Up to three lines, with two line breaks always; dots stand for the end of a third line that isn't the last.
std::string Fit_Three_Lines(std::string_view text, double width, const Text_Measure& measure);

/// One line, cut at any character and ended with dots where it is too wide. Throws error 5 if fewer than three
/// characters fit.
std::string Fit_One_Line(std::string_view text, double width, const Text_Measure& measure);

/// The style that captions are fitted for. Differs from the style in force where a switch of the packs is neither 0
/// nor 1: it is 0 then.
basic::Int16 DDD_Style(const settings::Settings& settings, const state::Calendar_State& calendar);

/// Writes as much of the text ("&" doubled) into the caption as fits in the style, and leaves the whole text in
/// DotDotDot_Lbl. Throws error 5 if fewer than three characters fit where one line must be cut.
void DotDotDot(Main_Frm& main_frm, std::string_view text, toolkit::Label& caption, basic::Int16 style);

}  // namespace presentation
