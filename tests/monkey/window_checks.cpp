#include "window_checks.h"

#include <algorithm>

#include "control_values.h"
#include "failed.h"
#include "text_form.h"
#include "toolkit/frame.h"
#include "toolkit/option_button.h"

namespace monkey {

namespace {

/// Where each window is, what its controls show, and where its focus is.
std::string Digest(const play::World& world) {
  std::string digest;
  for (const toolkit::Form* const window : world.Platform.Windows().From_The_Front()) {
    digest += "window " + window->Name + " " + play::Number_Text(window->Left) + " " + play::Number_Text(window->Top);
    const toolkit::Control* const focus = window->Focused();
    digest += (focus == nullptr ? "" : " " + Indexed_Name(*focus)) + "\n";
    for (const auto& [name, value] : Values_Of(*window)) digest += name + "=" + value + "\n";
  }
  return digest;
}

/// Of each group of options, those that lie in the same frame or on the same window, how many are on.
std::map<const toolkit::Frame*, int> Options_On(const toolkit::Form& window) {
  std::map<const toolkit::Frame*, int> on;
  for (const toolkit::Control* const control : window.Controls())
    if (const auto* const option = dynamic_cast<const toolkit::Option_Button*>(control))
      on[option->In] += option->Value() ? 1 : 0;
  return on;
}

}  // namespace

void Window_Checks::Before() { before_ = Digest(world_); }

void Window_Checks::After(const Brought_Up& brought, const std::string& lines) const {
  Check_Left_Behind();
  if (world_.State() == nullptr) return Check_Ended();
  Check_Open_Windows();
  Check_State();
  for (const toolkit::Form* const window : world_.Platform.Windows().In_Order_Of_Showing()) Check_Window(*window);
  const bool one_line = lines.find('\n') == std::string::npos;
  if (one_line && brought.refused && !brought.nested && brought.micros == 0 && Digest(world_) != before_)
    throw Failed("a refused gesture has changed " + before_ + "into " + Digest(world_));
}

void Window_Checks::Check_Ended() const {
  const auto& windows = world_.Platform.Windows().From_The_Front();
  if (!windows.empty()) throw Failed("the program has ended, and left the window " + windows.front()->Name);
}

void Window_Checks::Check_Left_Behind() const {
  if (world_.Platform.Windows_And_Timers.Input.Modal_Open()) throw Failed("the windows are still disabled for a box");
  if (world_.Platform.Windows_And_Timers.Busy()) throw Failed("the hourglass has stayed");
}

void Window_Checks::Check_Open_Windows() const {
  std::map<std::string, int> open;
  for (const toolkit::Form* const window : world_.Platform.Windows().From_The_Front()) {
    ++open[window->Name];
    const bool may_hide = window->Name == "Main_Frm" || window->Name == "frmBalloon";
    if (!window->Visible() && !may_hide) throw Failed("the window " + window->Name + " is there but not on view");
  }
  for (const auto& [name, count] : open) {
    if (name != "Main_Frm" && name != "Splash_Frm" && name != "Edit_Frm" && name != "Settings_Frm" &&
        name != "frmBalloon")
      throw Failed("an unknown window is open: " + name);
    if (count > 1) throw Failed(std::to_string(count) + " windows are open: " + name);
  }
}

void Window_Checks::Check_State() const {
  const auto& state = *world_.State();
  if (state.Settings_Visible != (world_.Find_Window("Settings_Frm") != nullptr))
    throw Failed("the calendar is wrong about the settings window");
  // Of two balloons the one that closes says that there is none.
  if (state.Tip_Showing && world_.Find_Window("frmBalloon") == nullptr)
    throw Failed("the calendar waits for a balloon that isn't there");
}

void Window_Checks::Check_Window(const toolkit::Form& window) const {
  if (!window.Accepts_Input()) throw Failed("the window " + window.Name + " takes no input");
  if (window.Minimised()) throw Failed("the window " + window.Name + " is shrunk to its icon");
  for (const auto& [frame, count] : Options_On(window))
    if (count != 1)
      throw Failed(std::to_string(count) + " options are on in " + (frame == nullptr ? window.Name : frame->Name));
  const auto& controls = window.Controls();
  const bool any = std::any_of(controls.begin(), controls.end(), [](const auto* one) { return one->Can_Have_Focus(); });
  const bool active = world_.Platform.Windows().Active() == &window;
  if (active && any && window.Focused() == nullptr)
    throw Failed("the window " + window.Name + " is active, and no control has the focus" +
                 (window.Last_Focus() == nullptr ? std::string() : "; last " + Indexed_Name(*window.Last_Focus())));
}

}  // namespace monkey
