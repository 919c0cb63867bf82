// The fitting of event texts into the calendar window's captions.
#pragma once

#include "presentation/arrangement.h"
#include "presentation/caption_fit.h"
#include "settings/settings.h"
#include "state/calendar_state.h"

namespace presentation {

/// The style that captions are fitted for. Differs from the style in force where a switch of the packs is neither 0
/// nor 1: it is 0 then.
basic::Int16 DDD_Style(const settings::Settings& settings, const state::Calendar_State& calendar);

class Caption_Fitting : private Text_Measure {
 public:
  Caption_Fitting(Arrangement& arrangement, const settings::Settings& settings, const state::Calendar_State& calendar);

  /// Writes as much of the text ("&" doubled) into the caption as fits, and leaves the whole text in DotDotDot_Lbl.
  /// Throws error 5 if fewer than three characters fit where one line must be cut.
  void DotDotDot(std::string_view text, toolkit::Label& caption);

 private:
  [[nodiscard]] double Width(std::string_view text) const override;
  [[nodiscard]] std::size_t Longest_Beginning(std::string_view text, double limit) const override;

  Arrangement& arrangement_;
  const settings::Settings& settings_;
  const state::Calendar_State& calendar_;
};

}  // namespace presentation
