// What a screen reader reads of a window: its controls in their order, each with its name, state, value and place, and
// what a click on it does. A backend hands this on to the system as it stands.
//
// The number of a control among those that are heard never changes; a hidden one is heard as invisible.
#pragma once

#include <string>
#include <vector>

#include "toolkit/accessible.h"
#include "toolkit/geometry.h"

namespace toolkit {

class Control;
class Form;

/// A control, a window, or a part of a list or of a strip of tabs, as it is heard.
struct Heard {
  toolkit::Role Role = Role::Text;
  std::string Name;
  std::optional<std::string> Value;
  std::string Action;    ///< what a click does, in the words that readers know; empty if it does nothing
  char Accelerator = 0;  ///< the letter that reaches it with Alt, 0 for none
  bool Visible = true;   ///< the user sees at least a part of it, unless it is scrolled out of its list
  bool Scrolled_Out = false;
  bool Available = true;   ///< not disabled
  bool Focusable = false;  ///< it takes the keys
  bool Focused = false;
  bool Selectable = false, Selected = false;
  Button_Marks Marks;
};

Heard Hear(const Form& form);
Heard Hear(const Control& control);
Heard Hear_Part(const Control& control, int part);

/// The controls that are heard by themselves, in the order of the window's controls.
std::vector<Control*> Heard_Controls(const Form& form);

/// The control that speaks for this one: itself, or the one that it is heard with.
Control& Speaker_Of(Control& control);

enum class Way { Next, Previous, Left, Right, Up, Down };

/// The visible control that comes next that way among those that are heard, in their order or on the window; nullptr if
/// there is none. Next and Previous of nullptr are the first one and the last.
Control* Neighbour(const Form& form, const Control* control, Way way);

// What a reader does in the user's place. It takes the road of the user's own hand, so **a handler may unload the
// window: touch nothing of it after calling one of these**. All of them do nothing where the user himself couldn't.

/// The click, or the double-click, that `Action` names.
void Act_On(Control& control);
/// Makes the window active.
void Give_Focus(Form& form);
/// The same, and gives the control the keys. Returns true if it is there and has them.
bool Give_Focus(Control& control);
void Select_Part(Control& control, int part);

}  // namespace toolkit
