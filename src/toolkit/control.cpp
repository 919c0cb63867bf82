#include "toolkit/control.h"

#include <utility>

#include "toolkit/accelerator.h"
#include "toolkit/form.h"
#include "toolkit/frame.h"

namespace toolkit {

Container::Container(toolkit::Frame& frame) : Window(frame.Window), Frame(&frame) {}

Length::operator double() const { return owner_.bounds_.*which_ / owner_.Window.Twips_Per_Unit(axis_); }

Length& Length::operator=(double value) {
  const double twips = value * owner_.Window.Twips_Per_Unit(axis_);
  double& kept = owner_.bounds_.*which_;
  if (kept == twips) return *this;
  kept = twips;
  owner_.Changed(Aspect::Bounds);
  return *this;
}

Control::Control(const Container& container, std::string name, int index)
    : Name(std::move(name)), Index(index), Window(container.Window), In(container.Frame),
      Left(*this, &Bounds::Left, Axis::Across), Top(*this, &Bounds::Top, Axis::Down),
      Width(*this, &Bounds::Width, Axis::Across), Height(*this, &Bounds::Height, Axis::Down) {
  Window.Add(*this);
}

Control::~Control() { Window.Remove(*this); }

void Control::Place(const Bounds& twips) {
  if (bounds_ == twips) return;
  bounds_ = twips;
  Changed(Aspect::Bounds);
}

Bounds Control::In_Window() const {
  Bounds place = bounds_;
  for (const toolkit::Frame* around = In; around != nullptr; around = around->In) {
    place.Left += around->In_Twips().Left;
    place.Top += around->In_Twips().Top;
  }
  return place;
}

bool Control::On_View() const { return Visible && (In == nullptr || In->On_View()); }

bool Control::Usable() const { return Enabled && (In == nullptr || In->Usable()); }

void Control::User_Click() {
  if (On_Click) On_Click();
}

std::string Control::Shown_Text() const {
  const std::string* const caption = Caption_With_Accelerator();
  return caption != nullptr ? Without_Marks(*caption) : std::string();
}

void Control::Changed(Aspect aspect) { Window.Control_Changed(*this, aspect); }

}  // namespace toolkit
