// Fits an event's text into the caption of its day box: computes what fits from a measure of text widths, and writes it
// into the caption.
//
// The tests for a fit differ on purpose if a text is exactly as wide as its box: a whole text, or what is left of one,
// fits only if it is narrower, while a line under construction still takes another word.
#pragma once

#include <string>
#include <string_view>

#include "presentation/main_frm.h"

namespace presentation {

/// Widths of texts in the window's font, in twips. A longer text is never narrower than its beginning.
class Text_Measure {
 public:
  [[nodiscard]] virtual double Width(std::string_view text) const = 0;

  /// The number of characters of the longest beginning that is narrower than `limit` twips.
  [[nodiscard]] virtual std::size_t Longest_Beginning(std::string_view text, double limit) const = 0;

 protected:
  ~Text_Measure() = default;
};

/// The beginning of the text that fills one line of `width` twips: as many whole words as fit, each with the blank
/// after it, or as much as fits of a first word that is too wide. If the last blank of the text still lies on the line,
/// the whole text is returned, however wide it is.
std::string_view Get_Line(std::string_view text, double width, const Text_Measure& measure);

/// Up to three lines of `width` twips, always with two line breaks. If the rest of the text doesn't fit the third line,
/// the line ends in three dots: in place of its last three characters, or after them if it has fewer than four.
std::string Fit_Three_Lines(std::string_view text, double width, const Text_Measure& measure);

/// One line of `width` twips; a text that is too wide is cut at any character and ends in three dots. Throws error 5 if
/// fewer than three characters fit.
std::string Fit_One_Line(std::string_view text, double width, const Text_Measure& measure);

/// The style that captions are fitted for. It differs from the style in force only if one of the settings Use_Themes
/// and Use_Theme_Style is neither 0 nor 1 and the other isn't 0: then it is 0.
basic::Int16 DDD_Style(const settings::Settings& settings, const state::Calendar_State& calendar);

/// Writes as much of the text ("&" doubled) into the caption as fits in the style, and leaves the whole text in
/// DotDotDot_Lbl. Throws error 5 if fewer than three characters fit where one line must be cut.
void DotDotDot(Main_Frm& main_frm, std::string_view text, toolkit::Label& caption, basic::Int16 style);

}  // namespace presentation
