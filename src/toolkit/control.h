// What all controls of a window have in common: a name, a place on the window or in a frame of it, and the mouse.
#pragma once

#include <functional>
#include <string>

#include "toolkit/accessible.h"
#include "toolkit/colour.h"
#include "toolkit/geometry.h"
#include "toolkit/keys.h"
#include "toolkit/pointer.h"
#include "toolkit/property.h"

namespace toolkit {

enum class Mouse_Button { None = 0, Left = 1, Right = 2, Middle = 4 };

/// What the pointer does: the button (of a move the one that is held), the place in twips, and
/// whether Shift, Ctrl or Alt is held.
struct Mouse_Event {
  Mouse_Button Button = Mouse_Button::None;
  double X = 0, Y = 0;
  bool Shift = false;
};

class Control;
class Form;
class Frame;

/// What a control lies in: a window, or a frame on one.
struct Container {
  Container(toolkit::Form& form) : Window(form) {}  // NOLINT: a control is simply given the one or the other
  Container(toolkit::Frame& frame);                 // NOLINT

  toolkit::Form& Window;
  toolkit::Frame* Frame = nullptr;
};

/// One of the four lengths of a control. It reads and writes in the present coordinate unit of the control's window.
class Length {
 public:
  Length(Control& owner, double Bounds::*which, Axis axis) : owner_(owner), which_(which), axis_(axis) {}
  Length(const Length&) = delete;
  Length& operator=(const Length& other) { return *this = static_cast<double>(other); }
  ~Length() = default;

  Length& operator=(double value);
  operator double() const;  // NOLINT: a length stands for its value

 private:
  Control& owner_;
  double Bounds::*which_;
  Axis axis_;
};

class Control : public Property_Owner, public Accessible {
 public:
  /// Joins its window after the controls that are already there, and so lies on top of them. `index` is the place in a
  /// control array, -1 for a control that stands alone. A frame must outlive what lies in it.
  Control(const Container& container, std::string name, int index = -1);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  const std::string Name;
  const int Index;
  Form& Window;
  toolkit::Frame* const In;  ///< the frame that it lies in, nullptr: on the window itself

  Length Left, Top, Width, Height;
  Property<bool> Visible{*this, Aspect::Visible, true};
  Property<bool> Enabled{*this, Aspect::Enabled, true};
  Property<std::string> ToolTipText{*this, Aspect::Tool_Tip};
  Property<Pointer> MousePointer{*this, Aspect::Pointer, Pointer::Default};  ///< the default one is the window's

  /// Place and size in twips, from the top left of what it lies in, whatever the window's unit is.
  [[nodiscard]] const Bounds& In_Twips() const { return bounds_; }
  void Place(const Bounds& twips);

  /// The same from the top left of the window.
  [[nodiscard]] Bounds In_Window() const;

  /// Whether it and all the frames around it are visible, and whether they are enabled.
  [[nodiscard]] bool On_View() const;
  [[nodiscard]] bool Usable() const;

  /// The mouse, with the place within the control.
  using Mouse_Handler = std::function<void(const Mouse_Event& event)>;
  Mouse_Handler On_Mouse_Down, On_Mouse_Move, On_Mouse_Up;
  std::function<void()> On_Click, On_Double_Click;

  void Changed(Aspect aspect) override;

  [[nodiscard]] bool Can_Have_Focus() const { return Takes_Focus() && On_View() && Usable(); }

  // How the input treats a control of its kind.

  [[nodiscard]] virtual bool Takes_Focus() const { return false; }

  /// Whether the Tab key stops at it. Of a group of options it stops at one alone.
  [[nodiscard]] virtual bool Tab_Stop() const { return true; }

  /// Whether a left button that goes up has clicked by the time that On_Mouse_Up hears of it, so that a check box has its
  /// new tick there.
  [[nodiscard]] virtual bool Clicks_Before_Release() const { return false; }

  /// Whether the second press of a double-click is one, and not merely another press.
  [[nodiscard]] virtual bool Double_Clicks() const { return true; }

  /// The user's click.
  virtual void User_Click();

  /// A key while the control has the focus. Returns true if it is used up.
  virtual bool Key_Down(const Key& /*key*/) { return false; }
  virtual void Key_Up(const Key& /*key*/) {}

  /// The left button, or the space key, is held on it, and lifting it now would click.
  virtual void Show_Held(bool /*held*/) {}

  /// The Tab key has given it the focus.
  virtual void Focused_By_Key() {}

  /// The caption in which "&" marks an accelerator; nullptr if it has none.
  [[nodiscard]] virtual const std::string* Caption_With_Accelerator() const { return nullptr; }

  /// The caption without its marks.
  [[nodiscard]] std::string Shown_Text() const override;

 private:
  friend class Length;
  Bounds bounds_;
};

}  // namespace toolkit
