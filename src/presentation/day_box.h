// One day box of the calendar: its number and its event, with the tips on both and the underline that stands for an
// event in the small style. The event's text lies on top of the number.
#pragma once

#include <string>
#include <string_view>

#include "settings/settings.h"
#include "state/calendar_state.h"
#include "toolkit/label.h"

namespace presentation {

class Main_Frm;

class Day_Box {
 public:
  Day_Box(Main_Frm& main_frm, toolkit::Label& number, toolkit::Label& caption)
      : Number(number), Caption(caption), main_frm_(main_frm) {}

  toolkit::Label& Number;   ///< Box_Lbl
  toolkit::Label& Caption;  ///< Box_Caption_Lbl

  /// Shows the box white and empty, ready for the next month to be built. Tips and underline stay.
  void Reset() const;

  void Set_Day(int day) const;

  /// Hides a box that has no day.
  void Hide_If_Empty() const;

  /// Writes as much of an event's text ("&" doubled) into the caption as the style has room for. If the setting wants
  /// tips, sets them to the whole text. Throws error 5 if fewer than three characters fit where one line must be cut.
  void Write_Event(std::string_view text, const settings::Settings& settings,
                   const state::Calendar_State& calendar) const;

  /// The text of the event that the caption shows, however little of it has room; "&" is doubled.
  [[nodiscard]] std::string Whole_Event() const;

  void Underline(bool on) const { Number.FontUnderline = on; }
  void Clear_Event() const;
  void Clear_Tips() const { Set_Tips(""); }

 private:
  void Set_Tips(const std::string& text) const;

  Main_Frm& main_frm_;
};

}  // namespace presentation
