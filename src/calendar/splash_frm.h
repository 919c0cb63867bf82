// The splash: shown for a moment at the start, over the calendar.
#pragma once

#include "presentation/main_frm.h"
#include "toolkit/timer.h"

namespace calendar {

class Splash_Frm {
 public:
  /// `closed` is called after the splash has closed, whether its timer or the user closed it.
  Splash_Frm(toolkit::Backend& backend, presentation::Main_Frm& main_frm, std::function<void()> closed);

  toolkit::Form Window;
  toolkit::Image Image1;
  toolkit::Label Label9;

  /// Shows the splash, which closes by itself after 1500 milliseconds.
  void Show() { Window.Show(false); }

 private:
  void Load();
  void Close();

  presentation::Main_Frm& main_frm_;
  toolkit::Timer start_timer_;
  const std::function<void()> closed_;
};

}  // namespace calendar
