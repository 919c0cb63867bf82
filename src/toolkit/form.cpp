#include "toolkit/form.h"

#include <algorithm>
#include <utility>

#include "toolkit/command_button.h"

namespace toolkit {

Form::Form(Backend& backend, std::string name, Form_Border border)
    : Font_Properties(static_cast<Property_Owner&>(*this)), Name(std::move(name)), Border(border), backend_(backend) {}

Form::~Form() = default;

void Form::Load() {
  if (peer_ != nullptr) return;
  peer_ = backend_.Make_Peer(*this);
  if (On_Load) On_Load();
}

void Form::Show(bool activate) {
  Load();
  if (peer_ == nullptr) return;
  visible_ = true;
  peer_->Show(activate);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  peer_->Hide();
}

void Form::Unload() {
  if (peer_ == nullptr || unloading_) return;
  unloading_ = true;
  if (On_Unload) On_Unload();
  unloading_ = false;
  visible_ = false;
  captured_ = nullptr;
  peer_.reset();
}

double Form::Client_Width() const {
  return (Width - backend_.Frame_Size(Border, Axis::Across)) / Twips_Per_Unit(Axis::Across);
}

double Form::Client_Height() const {
  return (Height - backend_.Frame_Size(Border, Axis::Down)) / Twips_Per_Unit(Axis::Down);
}

void Form::Set_Client_Size(double width, double height) {
  Width = width + backend_.Frame_Size(Border, Axis::Across);
  Height = height + backend_.Frame_Size(Border, Axis::Down);
}

void Form::Centre_On_Screen() {
  Left = (backend_.Screen_Size(Axis::Across) - Width) / 2;
  Top = (backend_.Screen_Size(Axis::Down) - Height) / 2;
}

void Form::Move(double left, double top) {
  if (Left() == left && Top() == top) return;
  Left.Keep(left);
  Top.Keep(top);
  Changed(Aspect::Bounds);
}

void Form::Set_Region(const Region& region) {
  if (peer_ != nullptr) peer_->Set_Region(region);
}

void Form::Set_Round_Region(int width, int height, int corner) {
  if (peer_ != nullptr) peer_->Set_Round_Region(width, height, corner);
}

bool Form::Minimised() const { return peer_ != nullptr && peer_->Minimised(); }

void Form::Set_Focus(Control& control) {
  if (peer_ != nullptr) peer_->Focus(control);
}

platform::Window_Handle Form::Handle() const { return peer_ != nullptr ? peer_->Handle() : 0; }

Font Form::Own_Font() const { return {FontName, FontSize, FontBold, FontItalic, FontUnderline}; }

double Form::Text_Width(std::string_view text) const { return backend_.Text_Width(Own_Font(), text); }

std::size_t Form::Longest_Beginning(std::string_view text, double limit) const {
  return backend_.Longest_Beginning(Own_Font(), text, limit);
}

double Form::Twips_Per_Unit(Axis axis) const {
  return Scale == Scale_Unit::Pixels ? backend_.Twips_Per_Pixel(axis) : 1;
}

Control* Form::Control_At(double x, double y) const {
  const auto hit = std::find_if(controls_.rbegin(), controls_.rend(), [=](const Control* control) {
    return control->Visible && control->In_Twips().Contains(x, y);
  });
  return hit == controls_.rend() ? nullptr : *hit;
}

void Form::Mouse_Down(Mouse_Button button, double x, double y) {
  captured_ = Control_At(x, y);
  clicking_ = true;
  if (captured_ == nullptr) return;
  const Bounds& place = captured_->In_Twips();
  if (captured_->Enabled && captured_->On_Mouse_Down) captured_->On_Mouse_Down(button, x - place.Left, y - place.Top);
}

void Form::Mouse_Move(Mouse_Button button, double x, double y) {
  Control* const target = captured_ != nullptr ? captured_ : Control_At(x, y);
  if (target == nullptr || !target->Enabled || !target->On_Mouse_Move) return;
  target->On_Mouse_Move(button, x - target->In_Twips().Left, y - target->In_Twips().Top);
}

void Form::Mouse_Up(Mouse_Button button, double x, double y) {
  Control* const target = std::exchange(captured_, nullptr);
  const bool click = std::exchange(clicking_, false);
  if (target == nullptr) {
    if (click && On_Click) On_Click();
    return;
  }
  if (!target->Enabled) return;
  const Bounds place = target->In_Twips();
  if (target->On_Mouse_Up) target->On_Mouse_Up(button, x - place.Left, y - place.Top);
  if (click && button == Mouse_Button::Left && place.Contains(x, y) && target->On_Click) target->On_Click();
}

void Form::Double_Click(Mouse_Button button, double x, double y) {
  // Only the left button knows a double-click.
  if (button != Mouse_Button::Left) {
    Mouse_Down(button, x, y);
    return;
  }
  captured_ = Control_At(x, y);
  if (captured_ != nullptr && captured_->Enabled && captured_->On_Double_Click) captured_->On_Double_Click();
}

void Form::Key_Up(int code) const {
  if (On_Key_Up) On_Key_Up(code);
}

bool Form::Press_Button(Property<bool> Command_Button::*kind) {
  for (Control* const control : controls_) {
    auto* const button = dynamic_cast<Command_Button*>(control);
    if (button == nullptr || !(button->*kind)()) continue;
    button->User_Click();
    return true;
  }
  return false;
}

bool Form::Enter_Pressed() { return Press_Button(&Command_Button::Default); }

bool Form::Escape_Pressed() { return Press_Button(&Command_Button::Cancel); }

void Form::Activated() const {
  if (On_Activate) On_Activate();
}

void Form::Deactivated() const {
  if (On_Deactivate) On_Deactivate();
}

void Form::Close_Requested() {
  if (On_Close) On_Close();
  else Unload();
}

void Form::Changed(Aspect aspect) {
  if (peer_ != nullptr) peer_->Form_Changed(aspect);
  if (aspect == Aspect::Bounds && On_Resize) On_Resize();
}

void Form::Control_Changed(Control& control, Aspect aspect) {
  if (peer_ != nullptr) peer_->Control_Changed(control, aspect);
}

void Form::Add(Control& control) { controls_.push_back(&control); }

void Form::Remove(Control& control) {
  std::erase(controls_, &control);
  if (captured_ == &control) captured_ = nullptr;
}

}  // namespace toolkit
