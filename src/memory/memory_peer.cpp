#include "memory/memory_peer.h"

#include <algorithm>
#include <stdexcept>

#include "memory/round_region.h"
#include "toolkit/form.h"

namespace memory {

Memory_Peer::Memory_Peer(Memory_Windows& windows, toolkit::Form& form, platform::Window_Handle handle)
    : windows_(windows), form_(form), handle_(handle) {
  windows_.Add(*this);
}

Memory_Peer::~Memory_Peer() { windows_.Remove(*this); }

void Memory_Peer::Show(bool activate) {
  ++counts_.Shows;
  windows_.Shown(*this, activate);
}

void Memory_Peer::Hide() {
  ++counts_.Hides;
  windows_.Hidden(*this);
}

void Memory_Peer::Set_Minimised(bool minimised) {
  minimised_ = minimised;
  windows_.Minimised(*this, minimised);
}

void Memory_Peer::Form_Changed(toolkit::Aspect /*aspect*/) { ++counts_.Form_Changes; }

bool Memory_Peer::Has(const toolkit::Control& control) const {
  const auto& controls = form_.Controls();
  return std::find(controls.begin(), controls.end(), &control) != controls.end();
}

/// The window's own with the control's number above it.
platform::Window_Handle Memory_Peer::Handle_Of(const toolkit::Control& control) const {
  constexpr platform::Window_Handle beyond_windows = 0x1000000;
  const auto& controls = form_.Controls();
  const auto place = std::find(controls.begin(), controls.end(), &control) - controls.begin();
  return handle_ + beyond_windows * static_cast<platform::Window_Handle>(place + 1);
}

void Memory_Peer::Control_Changed(toolkit::Control& control, toolkit::Aspect /*aspect*/) {
  if (&control.Window != &form_) throw std::logic_error("a change of a control of another window");
  ++counts_.Control_Changes;
}

void Memory_Peer::Set_Region(const toolkit::Region& region) {
  ++counts_.Regions;
  region_ = region;
}

void Memory_Peer::Set_Round_Region(int width, int height, int corner) {
  ++counts_.Regions;
  region_ = Round_Region(width, height, corner);
}

void Memory_Peer::Activate() { windows_.Activate(&form_); }

void Memory_Peer::Capture_Mouse() { windows_.Give_Mouse(this); }

void Memory_Peer::Release_Mouse() { windows_.Give_Mouse(nullptr); }

void Memory_Peer::Focus(toolkit::Control* control) {
  if (control != nullptr && !Has(*control)) throw std::logic_error("the focus for a control of another window");
  if (windows_.Active() != &form_) throw std::logic_error("the focus for a window that isn't active");
  focused_ = control;
}

}  // namespace memory
