// A window: its controls in their order, its place in twips, and which of them has the keys.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/backend.h"
#include "toolkit/label.h"

namespace toolkit {

class Command_Button;

class Form : public Property_Owner, public Font_Properties {
 public:
  /// An owner's window stays behind this one, and becomes active again when this one is unloaded while it is active.
  Form(Backend& backend, std::string name, Form_Border border = Form_Border::None, Form* owner = nullptr);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  ~Form();

  const std::string Name;
  const Form_Border Border;
  Form* const Owner;

  Property<std::string> Caption{*this, Aspect::Caption};
  /// The outer place and size on the screen, always in twips.
  Property<double> Left{*this, Aspect::Bounds}, Top{*this, Aspect::Bounds};
  Property<double> Width{*this, Aspect::Bounds}, Height{*this, Aspect::Bounds};
  Property<bool> Enabled{*this, Aspect::Enabled, true};
  Property<Colour> BackColor{*this, Aspect::Appearance, System_Colour(15)};
  Property<Colour> ForeColor{*this, Aspect::Appearance, System_Colour(18)};
  Property<Pointer> MousePointer{*this, Aspect::Pointer, Pointer::Default};
  Property<int> Outline_Corner{*this, Aspect::Appearance, 0};  ///< corners of a rounded outline, pixels; 0 for none
  Scale_Unit Scale = Scale_Unit::Twips;  ///< the unit in which the controls' lengths read and write

  std::function<void()> On_Load, On_Activate, On_Deactivate, On_Unload, On_Resize, On_Click, On_Close;
  std::function<void(int code)> On_Key_Up;  ///< with the virtual key code

  /// Makes the window, hidden; does nothing if it is there. On_Load runs with the window made.
  void Load();
  [[nodiscard]] bool Loaded() const { return peer_ != nullptr; }

  /// Loads it first if need be; does nothing more if it unloads itself in that.
  void Show(bool activate = true);
  void Hide();
  [[nodiscard]] bool Visible() const { return visible_; }

  /// Runs On_Unload and removes the window, with the windows that it owns; does nothing if it isn't loaded, or inside its
  /// own On_Unload.
  void Unload();

  /// The client area, in the present unit.
  [[nodiscard]] double Client_Width() const;
  [[nodiscard]] double Client_Height() const;

  /// Gives the client area a size, in twips.
  void Set_Client_Size(double width, double height);
  void Centre_On_Screen();

  /// Sets Left and Top in one step.
  void Move(double left, double top);

  /// Paints at once what has changed, before something that takes long.
  void Refresh() const;

  void Set_Region(const Region& region);
  /// Cuts the window to a rectangle with rounded corners, in pixels.
  void Set_Round_Region(int width, int height, int corner);
  [[nodiscard]] bool Minimised() const;
  /// Shrinks a visible window to its icon, or brings it back.
  void Set_Minimised(bool minimised);

  /// Gives the keys to one of its controls. A window that is visible becomes active by it. Throws std::logic_error for a
  /// control of another window.
  void Set_Focus(Control& control);
  [[nodiscard]] platform::Window_Handle Handle() const;
  /// The same of a control that has a window of its own.
  [[nodiscard]] platform::Window_Handle Handle_Of(const Control& control) const;

  /// The measure of a text in the window's own font, in twips.
  [[nodiscard]] double Text_Width(std::string_view text) const;
  [[nodiscard]] std::size_t Longest_Beginning(std::string_view text, double limit) const;

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  [[nodiscard]] Backend& System() const { return backend_; }
  [[nodiscard]] double Twips_Per_Unit(Axis axis) const;

  // For the input.

  /// Makes it the active window, if it is there.
  void Activate();
  void Capture_Mouse();
  void Release_Mouse();

  /// Whether the user can reach the window: it is enabled, and no message box is open.
  [[nodiscard]] bool Accepts_Input() const { return Enabled && !backend_.Input.Modal_Open(); }
  void Input_Allowed_Changed() { Changed(Aspect::Enabled); }

  /// The control that gets the keys, nullptr if none does at this moment; and the one that had them last.
  [[nodiscard]] Control* Focused() const;
  [[nodiscard]] const Control* Last_Focus() const { return focus_; }
  void Keep_Focus(Control* control);
  void Show_Focus();

  /// The button that the Enter key presses: the one that has the focus, else the default one; nullptr if there is none.
  [[nodiscard]] Command_Button* Enter_Button() const;
  /// The button that the Escape key presses.
  [[nodiscard]] Command_Button* Escape_Button() const;
  [[nodiscard]] bool Unloading() const { return unloading_; }

  /// The close box: On_Close if it is set, otherwise the window unloads. Does nothing while the user can't reach the window.
  void Close_Requested();

  void Changed(Aspect aspect) override;
  void Control_Changed(Control& control, Aspect aspect);
  /// The same for all that lies in a frame, and in frames within it.
  void Contents_Changed(const Frame& frame, Aspect aspect);
  void Add(Control& control);
  void Remove(Control& control);

 private:
  void Unload_Owned() const;
  [[nodiscard]] Font Own_Font() const;
  [[nodiscard]] Command_Button* Button_Marked(Property<bool> Command_Button::*mark) const;
  void Enter_Button_Changed(Control* button);

  Backend& backend_;
  std::vector<Control*> controls_;
  std::unique_ptr<Form_Peer> peer_;
  Control* focus_ = nullptr;
  bool visible_ = false;
  bool unloading_ = false;
};

}  // namespace toolkit
