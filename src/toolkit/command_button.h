// A push button.
#pragma once

#include "toolkit/label.h"

namespace toolkit {

class Command_Button : public Control, public Font_Properties {
 public:
  Command_Button(Form& window, std::string name, int index = -1);

  Property<std::string> Caption{*this, Aspect::Caption};  ///< "&" marks the shortcut
  Property<bool> Default{*this, Aspect::Default_Button};  ///< the Enter key presses it
  Property<bool> Cancel{*this, Aspect::Default_Button};   ///< the Escape key presses it

  /// The user's click, or the key that stands for it; a disabled or hidden button takes none.
  void User_Click() const;
};

}  // namespace toolkit
