#include "toolkit/reading.h"

#include <algorithm>
#include <limits>

#include "basic/text.h"
#include "toolkit/accelerator.h"
#include "toolkit/form.h"
#include "toolkit/frame.h"

namespace toolkit {

namespace {

/// In one line, without the blanks around it.
std::string In_One_Line(const std::string& text) {
  return std::string(basic::Trim_Blanks(basic::Replace_All(text, "\r\n", " ")));
}

bool Entered(Role role) {
  return role == Role::Text_Box || role == Role::List || role == Role::Drop_Down || role == Role::Slider;
}

Role Role_Of(const Control& control) { return control.Accessible_Role.value_or(control.Kind()); }

/// What is entered is called by the label right before it, or by the caption of the frame that it lies in.
std::string Text_Before(const Control& control) {
  const Control* before = nullptr;
  for (const Control* const other : control.Window.Controls()) {
    if (other == &control) break;
    if (other->In == control.In) before = other;
  }
  if (before != nullptr && before->Kind() == Role::Text) return before->Shown_Text();
  return control.In != nullptr ? control.In->Shown_Text() : std::string();
}

std::string Name_Of(const Control& control) {
  if (control.Accessible_Name) return In_One_Line(control.Accessible_Name());
  std::string name = control.Shown_Text();
  if (name.empty() && Entered(control.Kind())) name = Text_Before(control);
  return In_One_Line(name.empty() ? control.ToolTipText() : name);
}

bool Overlaps(const Bounds& a, const Bounds& b) {
  return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height && b.Top < a.Top + a.Height;
}

bool Seen(const Form& form) { return form.Visible() && !form.Minimised(); }

bool Seen(const Control& control) {
  const Form& form = control.Window;
  const Bounds client{0, 0, form.Client_Width() * form.Twips_Per_Unit(Axis::Across),
                      form.Client_Height() * form.Twips_Per_Unit(Axis::Down)};
  return Seen(form) && control.On_View() && Overlaps(control.In_Window(), client);
}

/// A reader comes when it wants; the user has no hand free while a menu is open or a button is held.
bool Within_Reach(const Form& form) {
  return form.Accepts_Input() && Seen(form) && !form.System().Input.User_Is_Busy();
}

bool Within_Reach(const Control& control) { return Within_Reach(control.Window) && Seen(control); }

bool Double_Clicked(const Control& control) { return control.On_Double_Click && !control.On_Click; }

const char* Action_Of(const Control& control) {
  switch (control.Kind()) {
    case Role::Check_Box: return control.Marks().Checked ? "Uncheck" : "Check";
    case Role::Option_Button: return "Select";
    case Role::Push_Button: return "Press";
    case Role::Drop_Down: return "Open";
    case Role::Text:
    case Role::Picture: break;
    default: return "";
  }
  if (Double_Clicked(control)) return "Double click";
  return control.On_Click || control.On_Mouse_Up ? "Press" : "";
}

bool Has_Focus(const Control& control) {
  return control.Window.Focused() == &control && control.Window.System().Active_Form() == &control.Window;
}

/// How far the beginning of `to` lies behind that of `from` on the way; not above 0 if it doesn't.
double Distance(const Bounds& from, const Bounds& to, Way way) {
  const bool across = way == Way::Left || way == Way::Right;
  const bool beside = across ? from.Top < to.Top + to.Height && to.Top < from.Top + from.Height
                             : from.Left < to.Left + to.Width && to.Left < from.Left + from.Width;
  if (!beside) return 0;
  const double behind = across ? to.Left - from.Left : to.Top - from.Top;
  return way == Way::Left || way == Way::Up ? -behind : behind;
}

}  // namespace

Heard Hear(const Form& form) {
  Heard heard;
  heard.Role = form.Border == Form_Border::None ? Role::Window : Role::Dialog;
  heard.Name = In_One_Line(form.Accessible_Name ? form.Accessible_Name() : form.Caption());
  heard.Visible = Seen(form);
  heard.Available = form.Accepts_Input();
  heard.Focusable = true;
  heard.Focused = form.Focused() == nullptr && form.System().Active_Form() == &form;
  return heard;
}

Heard Hear(const Control& control) {
  Heard heard;
  heard.Role = Role_Of(control);
  heard.Name = Name_Of(control);
  heard.Value = control.Shown_Value();
  heard.Action = Action_Of(control);
  if (const std::string* const caption = control.Caption_With_Accelerator())
    heard.Accelerator = Accelerator_Of(*caption);
  heard.Visible = Seen(control);
  heard.Available = control.Usable() && control.Window.Accepts_Input();
  heard.Focusable = control.Takes_Focus();
  heard.Focused = Has_Focus(control);
  heard.Marks = control.Marks();
  return heard;
}

Heard Hear_Part(const Control& control, int part) {
  Heard heard;
  const bool tab = control.Kind() == Role::Tabs;
  heard.Role = tab ? Role::Tab : Role::List_Item;
  heard.Name = In_One_Line(control.Part_Text(part));
  heard.Action = tab ? "Switch" : "Select";
  heard.Visible = Seen(control);
  heard.Available = control.Usable() && control.Window.Accepts_Input();
  heard.Focusable = heard.Selectable = true;
  heard.Selected = control.Selected_Part() == part;
  // A drop-down list keeps the focus to itself.
  heard.Focused = heard.Selected && control.Kind() != Role::Drop_Down && Has_Focus(control);
  return heard;
}

std::vector<Control*> Heard_Controls(const Form& form) {
  std::vector<Control*> heard;
  for (Control* const control : form.Controls())
    if (control->Heard_With == nullptr) heard.push_back(control);
  return heard;
}

Control& Speaker_Of(Control& control) { return control.Heard_With != nullptr ? *control.Heard_With : control; }

Control* Neighbour(const Form& form, const Control* control, Way way) {
  std::vector<Control*> heard = Heard_Controls(form);
  std::erase_if(heard, [&](const Control* other) { return other != control && !Seen(*other); });
  if (way == Way::Previous) std::reverse(heard.begin(), heard.end());
  const auto at = std::find(heard.begin(), heard.end(), control);
  if (way == Way::Next || way == Way::Previous) {
    const auto next = at == heard.end() ? heard.begin() : at + 1;
    return next == heard.end() ? nullptr : *next;
  }
  if (at == heard.end()) return nullptr;
  Control* nearest = nullptr;
  double least = std::numeric_limits<double>::max();
  for (Control* const other : heard) {
    const double distance = Distance(control->In_Window(), other->In_Window(), way);
    if (distance <= 0 || distance >= least) continue;
    nearest = other;
    least = distance;
  }
  return nearest;
}

void Act_On(Control& control) {
  Form& form = control.Window;
  Input& input = form.System().Input;
  if (!Within_Reach(control) || Hear(control).Action.empty()) return;
  const Bounds place = control.In_Window();
  const Mouse_Event event{Mouse_Button::Left, place.Left + place.Width / 2, place.Top + place.Height / 2, false};
  if (Double_Clicked(control)) input.Press_Twice(form, &control, event);
  else input.Press(form, &control, event);
  if (input.Is_There(&form, &control)) input.Release(form, &control, event);
}

void Give_Focus(Form& form) {
  if (!Within_Reach(form)) return;
  form.Activate();
  form.System().Input.Tell_Of_Activity();
}

bool Give_Focus(Control& control) {
  Form& form = control.Window;
  Input& input = form.System().Input;
  if (!Within_Reach(control) || !control.Can_Have_Focus()) return false;
  Give_Focus(form);
  if (input.Is_There(&form, &control) && control.Can_Have_Focus()) input.Move_Focus(form, &control);
  return input.Is_There(&form, &control) && form.Focused() == &control;
}

void Select_Part(Control& control, int part) {
  if (!Within_Reach(control) || !control.Usable()) return;
  if (part >= 0 && part < control.Part_Count()) control.Select_Part(part);
}

}  // namespace toolkit
