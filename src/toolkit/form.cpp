#include "toolkit/form.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "toolkit/command_button.h"
#include "toolkit/frame.h"

namespace toolkit {

namespace {

/// True for as long as it lives.
class Flag_Set {
 public:
  explicit Flag_Set(bool& flag) : flag_(flag) { flag_ = true; }
  Flag_Set(const Flag_Set&) = delete;
  Flag_Set& operator=(const Flag_Set&) = delete;
  ~Flag_Set() { flag_ = false; }

 private:
  bool& flag_;
};

}  // namespace

Form::Form(Backend& backend, std::string name, Form_Border border, Form* owner)
    : Font_Properties(static_cast<Property_Owner&>(*this)), Name(std::move(name)), Border(border), Owner(owner),
      backend_(backend) {}

// The controls are gone by now, and the focus with them.
Form::~Form() { backend_.Input.Remove(*this); }

void Form::Load() {
  if (peer_ != nullptr) return;
  focus_ = nullptr;
  backend_.Input.Add(*this);
  peer_ = backend_.Make_Peer(*this);
  if (On_Load) On_Load();
}

void Form::Show(bool activate) {
  Load();
  if (peer_ == nullptr) return;
  visible_ = true;
  peer_->Show(activate);
  backend_.Input.Tell_Of_Activity();
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  peer_->Hide();
}

void Form::Unload() {
  if (peer_ == nullptr || unloading_) return;
  {
    const Flag_Set unloading(unloading_);
    if (On_Unload) On_Unload();
    Unload_Owned();
    if (Owner != nullptr && Owner->Visible() && !Owner->unloading_ && backend_.Active_Form() == this &&
        !backend_.Input.Modal_Open())
      Owner->Activate();
  }
  visible_ = false;
  backend_.Input.Remove(*this);
  peer_.reset();
}

void Form::Unload_Owned() const {
  for (Form* const form : std::vector(backend_.Input.Forms()))
    if (backend_.Input.Is_There(form) && form->Owner == this) form->Unload();
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

void Form::Refresh() const {
  if (peer_ != nullptr) peer_->Paint_Now();
}

void Form::Set_Region(const Region& region) {
  if (peer_ != nullptr) peer_->Set_Region(region);
}

void Form::Set_Round_Region(int width, int height, int corner) {
  if (peer_ != nullptr) peer_->Set_Round_Region(width, height, corner);
}

bool Form::Minimised() const { return peer_ != nullptr && peer_->Minimised(); }

void Form::Set_Minimised(bool minimised) {
  if (!visible_ || Minimised() == minimised) return;
  peer_->Set_Minimised(minimised);
  backend_.Input.Tell_Of_Activity();
}

void Form::Set_Focus(Control& control) {
  if (&control.Window != this) throw std::logic_error("the focus for a control of another window");
  if (peer_ == nullptr) return;
  backend_.Input.Move_Focus(*this, &control);
  if (!visible_) return;
  Activate();
  backend_.Input.Tell_Of_Activity();
}

platform::Window_Handle Form::Handle() const { return peer_ != nullptr ? peer_->Handle() : 0; }

platform::Window_Handle Form::Handle_Of(const Control& control) const {
  return peer_ != nullptr ? peer_->Handle_Of(control) : 0;
}

Font Form::Own_Font() const { return {FontName, FontSize, FontBold, FontItalic, FontUnderline}; }

double Form::Text_Width(std::string_view text) const { return backend_.Text_Width(Own_Font(), text); }

std::size_t Form::Longest_Beginning(std::string_view text, double limit) const {
  return backend_.Longest_Beginning(Own_Font(), text, limit);
}

double Form::Twips_Per_Unit(Axis axis) const {
  return Scale == Scale_Unit::Pixels ? backend_.Twips_Per_Pixel(axis) : 1;
}

void Form::Activate() {
  if (peer_ != nullptr) peer_->Activate();
}

void Form::Capture_Mouse() {
  if (peer_ != nullptr) peer_->Capture_Mouse();
}

void Form::Release_Mouse() {
  if (peer_ != nullptr) peer_->Release_Mouse();
}

Control* Form::Focused() const { return focus_ != nullptr && focus_->Can_Have_Focus() ? focus_ : nullptr; }

void Form::Keep_Focus(Control* control) {
  if (focus_ == control) return;
  Control* const before = std::exchange(focus_, control);
  if (before != nullptr) before->Show_Held(false);
  // A button with the focus takes the Enter key from the default one, and the look that goes with it.
  Enter_Button_Changed(before);
  Enter_Button_Changed(focus_);
  Enter_Button_Changed(Button_Marked(&Command_Button::Default));
}

void Form::Enter_Button_Changed(Control* button) {
  if (dynamic_cast<Command_Button*>(button) != nullptr) Control_Changed(*button, Aspect::Default_Button);
}

void Form::Show_Focus() {
  if (peer_ != nullptr) peer_->Focus(Focused());
}

Command_Button* Form::Button_Marked(Property<bool> Command_Button::*mark) const {
  for (Control* const control : controls_) {
    auto* const button = dynamic_cast<Command_Button*>(control);
    if (button != nullptr && (button->*mark)()) return button;
  }
  return nullptr;
}

Command_Button* Form::Enter_Button() const {
  auto* const focused = dynamic_cast<Command_Button*>(Focused());
  return focused != nullptr ? focused : Button_Marked(&Command_Button::Default);
}

Command_Button* Form::Escape_Button() const { return Button_Marked(&Command_Button::Cancel); }

void Form::Close_Requested() {
  if (!Accepts_Input()) return;
  if (On_Close) On_Close();
  else Unload();
}

void Form::Changed(Aspect aspect) {
  if (aspect == Aspect::Enabled && !Accepts_Input() && backend_.Input.Mouse_Window() == this)
    backend_.Input.Take_Mouse();
  if (peer_ != nullptr) peer_->Form_Changed(aspect);
  if (aspect == Aspect::Bounds && On_Resize) On_Resize();
}

void Form::Control_Changed(Control& control, Aspect aspect) {
  if (peer_ == nullptr) return;
  peer_->Control_Changed(control, aspect);
  if (&control == focus_ && !control.Can_Have_Focus()) backend_.Input.Focus_Refused(*this);
}

void Form::Contents_Changed(const Frame& frame, Aspect aspect) {
  for (Control* const control : controls_) {
    if (control->In != &frame) continue;
    Control_Changed(*control, aspect);
    if (const auto* const inner = dynamic_cast<const Frame*>(control)) Contents_Changed(*inner, aspect);
  }
}

void Form::Add(Control& control) { controls_.push_back(&control); }

void Form::Remove(Control& control) {
  std::erase(controls_, &control);
  if (focus_ == &control) focus_ = nullptr;
  backend_.Input.Remove(control);
}

}  // namespace toolkit
