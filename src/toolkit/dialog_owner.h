// A control that is never seen. It has a window of the system's own, to which the system's dialogs belong.
#pragma once

#include <utility>

#include "toolkit/form.h"

namespace toolkit {

class Dialog_Owner : public Control {
 public:
  Dialog_Owner(const Container& container, std::string name) : Control(container, std::move(name)) { Visible = false; }

  /// Its window; 0 while the one that it lies in isn't loaded.
  [[nodiscard]] platform::Window_Handle Handle() const { return Window.Handle_Of(*this); }
};

}  // namespace toolkit
