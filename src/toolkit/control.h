// What all controls of a window have in common: a name, a place, and the mouse.
#pragma once

#include <functional>
#include <string>

#include "toolkit/colour.h"
#include "toolkit/geometry.h"
#include "toolkit/property.h"

namespace toolkit {

enum class Mouse_Button { None = 0, Left = 1, Right = 2, Middle = 4 };

class Control;
class Form;

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

class Control : public Property_Owner {
 public:
  /// Joins its window behind the controls that are already there, and so lies on top of them. `index` is the place in a
  /// control array, -1 for a control that stands alone.
  Control(Form& window, std::string name, int index = -1);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  const std::string Name;
  const int Index;
  Form& Window;

  Length Left, Top, Width, Height;
  Property<bool> Visible{*this, Aspect::Visible, true};
  Property<bool> Enabled{*this, Aspect::Enabled, true};
  Property<std::string> ToolTipText{*this, Aspect::Tool_Tip};

  /// Place and size in twips, whatever the window's unit is.
  [[nodiscard]] const Bounds& In_Twips() const { return bounds_; }
  void Place(const Bounds& twips);

  /// The mouse: x and y in twips within the control.
  using Mouse_Handler = std::function<void(Mouse_Button button, double x, double y)>;
  Mouse_Handler On_Mouse_Down, On_Mouse_Move, On_Mouse_Up;
  std::function<void()> On_Click, On_Double_Click;

  void Changed(Aspect aspect) override;

 private:
  friend class Length;
  Bounds bounds_;
};

}  // namespace toolkit
