#include "toolkit/check_box.h"

#include <utility>

namespace toolkit {

Check_Box::Check_Box(Form& window, std::string name, int index)
    : Control(window, std::move(name), index), Font_Properties(static_cast<Property_Owner&>(*this)) {}

void Check_Box::User_Click() {
  if (Enabled && Visible) Value = Value() == 1 ? 0 : 1;
}

void Check_Box::Changed(Aspect aspect) {
  Control::Changed(aspect);
  if (aspect == Aspect::Value && On_Click) On_Click();
}

}  // namespace toolkit
