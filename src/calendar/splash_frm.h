// The splash: shown for a moment at the start, over the calendar.
#pragma once

#include "presentation/arrangement.h"
#include "toolkit/timer.h"

namespace calendar {

class Splash_Frm {
 public:
  Splash_Frm(toolkit::Backend& backend, presentation::Arrangement& arrangement);

  toolkit::Form Window;
  toolkit::Image Image1;
  toolkit::Label Label9;

  /// After it has gone, by itself or by the user.
  std::function<void()> On_Closed;

  /// Shows it; it goes by itself after 1500 milliseconds.
  void Show() { Window.Show(false); }

 private:
  void Load();
  void Close();

  presentation::Arrangement& arrangement_;
  toolkit::Timer start_timer_;
};

}  // namespace calendar
