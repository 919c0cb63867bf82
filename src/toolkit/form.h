// A window: its controls in their order, its place in twips, and the road of the mouse and the keys to them.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/backend.h"
#include "toolkit/label.h"

namespace toolkit {

class Command_Button;

class Form : public Property_Owner, public Font_Properties {
 public:
  Form(Backend& backend, std::string name, Form_Border border = Form_Border::None);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  ~Form();

  const std::string Name;
  const Form_Border Border;

  Property<std::string> Caption{*this, Aspect::Caption};
  /// The outer place and size on the screen, always in twips.
  Property<double> Left{*this, Aspect::Bounds}, Top{*this, Aspect::Bounds};
  Property<double> Width{*this, Aspect::Bounds}, Height{*this, Aspect::Bounds};
  Property<bool> Enabled{*this, Aspect::Enabled, true};
  Property<Colour> BackColor{*this, Aspect::Appearance, System_Colour(15)};
  Property<Colour> ForeColor{*this, Aspect::Appearance, System_Colour(18)};
  Property<int> MousePointer{*this, Aspect::Pointer, 0};       ///< 0 the default arrow, 5 the four-headed arrow
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

  /// Runs On_Unload and removes the window; does nothing if it isn't loaded, or inside its own On_Unload.
  void Unload();

  /// The client area, in the present unit.
  [[nodiscard]] double Client_Width() const;
  [[nodiscard]] double Client_Height() const;

  /// Gives the client area a size, in twips.
  void Set_Client_Size(double width, double height);
  void Centre_On_Screen();

  /// Sets Left and Top in one step.
  void Move(double left, double top);

  void Set_Region(const Region& region);
  /// Cuts the window to a rectangle with rounded corners, in pixels.
  void Set_Round_Region(int width, int height, int corner);
  [[nodiscard]] bool Minimised() const;
  void Set_Focus(Control& control);
  [[nodiscard]] platform::Window_Handle Handle() const;

  /// The measure of a text in the window's own font, in twips.
  [[nodiscard]] double Text_Width(std::string_view text) const;
  [[nodiscard]] std::size_t Longest_Beginning(std::string_view text, double limit) const;

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  [[nodiscard]] Backend& System() const { return backend_; }
  [[nodiscard]] double Twips_Per_Unit(Axis axis) const;

  /// The topmost visible control at a place of the client area, in twips; nullptr if there is none.
  [[nodiscard]] Control* Control_At(double x, double y) const;

  /// Input, from the backend: x and y in twips within the client area. The control that got the press gets the moves
  /// and the release that follow it.
  void Mouse_Down(Mouse_Button button, double x, double y);
  void Mouse_Move(Mouse_Button button, double x, double y);
  void Mouse_Up(Mouse_Button button, double x, double y);
  void Double_Click(Mouse_Button button, double x, double y);
  /// The mouse went to another window before the release: a menu or a box came up. No release will follow.
  void Mouse_Lost() { captured_ = nullptr; }
  void Key_Up(int code) const;
  /// The keys of a dialog: say whether there was a default (cancel) button to press.
  bool Enter_Pressed();
  bool Escape_Pressed();
  void Activated() const;
  void Deactivated() const;

  /// The close box: On_Close if it is set, otherwise the window unloads.
  void Close_Requested();

  void Changed(Aspect aspect) override;
  void Control_Changed(Control& control, Aspect aspect);
  void Add(Control& control);
  void Remove(Control& control);

 private:
  [[nodiscard]] Font Own_Font() const;
  bool Press_Button(Property<bool> Command_Button::*kind);

  Backend& backend_;
  std::vector<Control*> controls_;
  std::unique_ptr<Form_Peer> peer_;
  Control* captured_ = nullptr;
  bool clicking_ = false;  // the next release is a click; that of a double-click isn't
  bool visible_ = false;
  bool unloading_ = false;
};

}  // namespace toolkit
