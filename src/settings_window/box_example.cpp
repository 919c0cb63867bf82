#include "settings_window/box_example.h"

namespace settings_window {

void Look_Like_A_Day_Box(toolkit::Label& box) {
  box.BackColor = toolkit::white;
  box.Fixed_Border = true;
  box.FontName = "Arial";
  box.FontSize = 9;
  box.FontBold = true;
}

}  // namespace settings_window
