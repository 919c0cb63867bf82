#include "calendar/splash_frm.h"

#include <utility>

namespace calendar {

namespace {

constexpr int shown_for = 1500;  // milliseconds
constexpr double width = 5610;
constexpr double height = 1335;

}  // namespace

Splash_Frm::Splash_Frm(toolkit::Backend& backend, presentation::Main_Frm& main_frm, std::function<void()> closed)
    : Window(backend, "Splash_Frm"), Image1(Window, "Image1"), Label9(Window, "Label9"), main_frm_(main_frm),
      start_timer_(backend, "Start_Timer", shown_for), closed_(std::move(closed)) {
  Window.Width = width;
  Window.Height = height;
  Window.BackColor = toolkit::white;
  Image1.Place({360, 308, 720, 720});
  Image1.Picture = platform::Stock_Picture::Program_Icon;
  Label9.Place({1365, 368, 3900, 600});
  Label9.Caption = "Meridex";
  Label9.FontName = "Arial";
  Label9.FontSize = 24.0;
  Label9.FontBold = true;
  Label9.Transparent = true;
  Window.Accessible_Name = [this] { return Label9.Caption(); };
  Window.On_Load = [this] { Load(); };
  Window.On_Unload = [this] { start_timer_.Disable(); };
  Window.On_Close = [this] { Close(); };
  start_timer_.On_Tick = [this] { Close(); };
}

/// Places it over the calendar: centred across, and down by half the top of the last box, which depends on the box
/// style, and its own height.
void Splash_Frm::Load() {
  const toolkit::Form& main = main_frm_.Window;
  const int beside = toolkit::Round_To_Even(main.Width - Window.Width) / 2;
  const int half_way = toolkit::Round_To_Even(main_frm_.Box_Lbl[presentation::box_count - 1].In_Twips().Top) / 2;
  Window.Move(main.Left + beside, main.Top + half_way + Window.Height);
  start_timer_.Enable();
}

void Splash_Frm::Close() {
  Window.Unload();
  closed_();
}

}  // namespace calendar
