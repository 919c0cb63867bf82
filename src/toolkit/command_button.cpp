#include "toolkit/command_button.h"

#include <utility>

namespace toolkit {

Command_Button::Command_Button(Form& window, std::string name, int index)
    : Control(window, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Command_Button::User_Click() const {
  if (Enabled && Visible && On_Click) On_Click();
}

}  // namespace toolkit
