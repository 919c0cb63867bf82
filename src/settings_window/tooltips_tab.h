// The tab "Tooltips": no tips, the standard ones or balloons, and a small day box to try the choice on.
#pragma once

#include "calendar/dates.h"
#include "platform/event_loop.h"
#include "toolkit/control_array.h"
#include "toolkit/frame.h"
#include "toolkit/option_button.h"
#include "tooltips/balloon_tooltip.h"

namespace settings_window {

class Tooltips_Tab {
 public:
  Tooltips_Tab(toolkit::Frame& page, calendar::Dates& dates, tooltips::Balloons& balloons, platform::Waits& waits,
               state::Calendar_State& calendar);

  toolkit::Frame Frame1;
  toolkit::Control_Array<toolkit::Option_Button> Tips_Opt;
  toolkit::Frame Preview_Fra;
  toolkit::Label TipsTrigger_Lbl;
  toolkit::Label TipBoxExample_Lbl, TipExample_Lbl;  ///< the box and, over it, its text
  toolkit::Frame Frame14;
  toolkit::Label TipsNotes_Lbl;

  /// Turns an option on, and explains it where it was off; a number that no option has turns none on.
  void Show_Choice(basic::Int16 index) const;

  /// The number of the option that is on.
  [[nodiscard]] basic::Int16 Choice() const;

  /// Whether a press on the example is still being waited for: the window's controls must not go yet.
  [[nodiscard]] bool Waiting() const { return presses_ > 0; }

  /// Shows the balloon beside the example.
  void Example_Tooltip();

 private:
  void Place_Controls();
  void Tie_Events();
  void Explain(int index);
  void Press(const toolkit::Mouse_Event& event);

  const toolkit::Form& window_;
  calendar::Dates& dates_;
  tooltips::Balloons& balloons_;
  platform::Waits& waits_;
  state::Calendar_State& calendar_;
  int presses_ = 0;  // the presses that haven't ended: one may come while another waits
};

}  // namespace settings_window
